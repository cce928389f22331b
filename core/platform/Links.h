// Links into the application, on their way there.
#pragma once

#include "core/platform/Result.h"

#include <functional>
#include <string>

namespace vitrelle {

struct Links {
  /// Hands the URL to the running application, which comes to the front; false when none runs.
  std::function<Result<bool>(const std::string& url)> send;
};

} // namespace vitrelle
