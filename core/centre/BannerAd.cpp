#include "core/centre/BannerAd.h"

namespace vitrelle {

void BannerAd::makeView() const {
  const auto print = platform_.debugConsole.print;
  const auto line = [&](const char* text) { return [=] { print(text); }; };
  platform_.bannerKit.load(
      {.width = 320,
       .height = 50,
       .adUnitID = unitID_,
       .rootViewController = platform_.application.rootViewController()},
      {.didReceiveAd = line("bannerViewDidReceiveAd"),
       .didFailToReceiveAd =
           [print](const std::string& description) {
             print("bannerView:didFailToReceiveAdWithError: " + description);
           },
       .didRecordImpression = line("bannerViewDidRecordImpression"),
       .willPresentScreen = line("bannerViewWillPresentScreen"),
       // Spelt so in the log since the first version; whoever filters it relies on that.
       .willDismissScreen = line("bannerViewWillDIsmissScreen"),
       .didDismissScreen = line("bannerViewDidDismissScreen")});
}

} // namespace vitrelle
