// The folder of images that the application and the widgets share.
#pragma once

#include "core/platform/Data.h"
#include "core/platform/Result.h"

#include <functional>
#include <optional>
#include <string>

namespace vitrelle {

struct Files {
  /// The root of the group container; nothing when there is none.
  std::function<std::optional<std::string>()> groupContainer;

  std::function<bool(const std::string& path)> fileExists;
};

} // namespace vitrelle
