// Which phones a screenshot may be from, told from its size, and what becomes of one that is
// another phone's.
#pragma once

#include "core/platform/Image.h"
#include "core/platform/PhoneBook.h"
#include "core/platform/Platform.h"
#include "core/platform/Screen.h"
#include "core/slicing/WidgetLocation.h"

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle {

/// Phones whose screenshots have the same size and whose slots lie at the same places, so that
/// nobody need tell them apart.
struct ScreenshotOrigin {
  struct Phone {
    std::string name;
    bool zoomed = false;
    bool operator==(const Phone&) const = default;
  };
  PhoneChoice choice;        ///< that stands for all of them: the first one's
  std::vector<Phone> phones; ///< never empty
  bool isMeasured = false;   ///< else they have no slots
};

/// The phones with screenshots of a size; the present one's other display setting comes first, then
/// the others as the models have them, those with a standard display before zoomed ones. Phones
/// without measurements are left out where there are others. Systems are as they suit each phone.
std::vector<ScreenshotOrigin> screenshotOrigins(const std::vector<PhoneModel>& models,
                                                const PhoneChoice& present, const PixelSize& size);

/// Of the phone that the platform stands for.
PixelSize screenshotSize(const Device& device);

/// Stands before the intake, which takes any picture: asks the user about screenshots that are
/// another phone's, and hands on the others, and those of sizes that no phone has, at once.
class IncomingScreenshots final : public Screen {
 public:
  using HandOn = std::function<void(InterfaceStyle, const Image&)>;

  /// The platform must outlive it.
  IncomingScreenshots(const Platform& platform, HandOn handOn)
      : platform_(platform), handOn_(std::move(handOn)) {}

  /// While it asks, others that come wait for the same answer.
  void receive(InterfaceStyle style, const Image& image);

  bool isAsking() const { return !waiting_.empty(); }
  /// Of the picture that is asked about, also when it was answered.
  const PixelSize& size() const { return size_; }
  const std::vector<ScreenshotOrigin>& origins() const { return origins_; }

  // The answers.
  /// It is from there: that phone is the one to stand for from now on, and what waits is handed on.
  /// Fails where the choice can't be kept for later programs.
  Status pick(std::size_t origin);
  /// The present phone stays, and what waits is handed on.
  void keep() { handOnAll(); }
  /// Nothing is handed on.
  void cancel();

 private:
  void handOnAll();

  const Platform& platform_;
  HandOn handOn_;
  std::vector<std::pair<InterfaceStyle, Image>> waiting_;
  PixelSize size_;
  std::vector<ScreenshotOrigin> origins_;
};

} // namespace vitrelle
