// The clipboard as the only way in which pictures come to a widget style.
#pragma once

#include "core/platform/Platform.h"

#include <optional>

namespace vitrelle {

/// The picture in the clipboard; nothing where it says that it holds none. Where it can't be had
/// after all a question mark stands in, which is a picture like any other.
std::optional<Image> pastedPicture(const Platform& platform);

} // namespace vitrelle
