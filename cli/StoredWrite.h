// Writes of the logic, which goes on as if the store had taken them: a command has to know.
#pragma once

#include "cli/Command.h"
#include "core/store/GroupStore.h"

namespace vitrelle::cli {

/// Whether the key has the value that was just written; complains if it has not.
template <class T>
bool wasTaken(const GroupStore& store, const Key<T>& key, const T& value) {
  const auto present = store.read(key);
  if (present && *present == value) return true;
  complain(present ? Failure{key.name, "the store did not take it"} : present.failure());
  return false;
}

} // namespace vitrelle::cli
