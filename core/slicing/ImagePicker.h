// The picture that a user picks, on its way from the system's picker to a screen.
#pragma once

#include "core/platform/Image.h"

#include <functional>
#include <optional>
#include <utility>

namespace vitrelle {

/// Lives for one opening of the picker.
class ImagePicker final {
 public:
  /// `selectedImage` belongs to the screen; `dismiss` closes the picker.
  ImagePicker(std::optional<Image>& selectedImage, std::function<void()> dismiss)
      : selectedImage_(selectedImage), dismiss_(std::move(dismiss)) {}

  /// The picture as it is, unedited and at full size. Without one the last stays.
  void didFinishPicking(const std::optional<Image>& original) {
    if (original) selectedImage_ = original;
    dismiss_();
  }

 private:
  std::optional<Image>& selectedImage_;
  std::function<void()> dismiss_;
};

} // namespace vitrelle
