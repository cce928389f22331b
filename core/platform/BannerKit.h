// The advertising kit, as far as the application touches it.
#pragma once

#include "core/platform/Application.h"

#include <functional>
#include <optional>
#include <string>

namespace vitrelle {

/// Sizes in points.
struct BannerRequest {
  double width = 320;
  double height = 50;
  std::string adUnitID;
  /// Presents what a press on the banner opens; none when there was no window yet.
  std::optional<ViewController> rootViewController;
};

/// What the kit tells of a banner, on the main thread.
struct BannerDelegate {
  std::function<void()> didReceiveAd;
  std::function<void(const std::string& description)> didFailToReceiveAd;
  std::function<void()> didRecordImpression;
  std::function<void()> willPresentScreen;
  std::function<void()> willDismissScreen;
  std::function<void()> didDismissScreen;
};

struct BannerKit {
  /// Once in the life of the process, before any banner.
  std::function<void()> start;
  /// Loads one advertisement for a banner. Without a kit it does nothing.
  std::function<void(const BannerRequest&, BannerDelegate)> load;
};

} // namespace vitrelle
