// The one place where the application touches the advertising kit: a banner of a fixed size.
#pragma once

#include "core/platform/Platform.h"

#include <string>
#include <utility>

namespace vitrelle {

class BannerAd final {
 public:
  BannerAd(const Platform& platform, std::string unitID)
      : platform_(platform), unitID_(std::move(unitID)) {}

  static constexpr double stripHeight = 50; ///< points; the strip is as wide as the screen

  /// Asks for one advertisement in the life of the view. What the kit tells goes to the debug
  /// console; a failure leaves the strip empty.
  void makeView() const;

 private:
  const Platform& platform_;
  std::string unitID_;
};

} // namespace vitrelle
