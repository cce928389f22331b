// What a form edits: a record that is not stored yet, or not so, and what belongs to it until then.
#pragma once

#include "core/platform/Image.h"
#include "core/store/StyleRecord.h"

#include <optional>
#include <string>

namespace vitrelle {

struct StyleDraft {
  StyleRecord record;
  std::string kind = {}; ///< the `pickedStyle` of a family with kinds: "analog"; else empty
  std::optional<Image> picture = {}; ///< one that is to become a file of the record's
};

} // namespace vitrelle
