#include "core/families/music/AlphaViewForNowPlaying.h"

namespace vitrelle {

namespace {

constexpr GateRefusal appleMusicNotSupported{
    .picture = "AppleMusic",
    .message = "This feature requires an active Apple Music Subscription",
    .offer = "Get Apple Music",
    .offerSymbol = "music.note",
    .button = "Get Apple Music"};

} // namespace

void AlphaViewForNowPlaying::appear() {
  asked_ = platform_.musicPlayer.requestAuthorization([this] {
    // Whatever was answered: without an authorisation there is no subscription either.
    asked_ = platform_.musicPlayer.currentSubscription([this](bool canPlayCatalogContent) {
      status_ = canPlayCatalogContent;
      loaded_ = true;
      changed();
    });
  });
}

GateState AlphaViewForNowPlaying::state() const {
  if (!loaded_) return GateState::waiting;
  return status_ ? GateState::open : GateState::refused;
}

const GateRefusal& AlphaViewForNowPlaying::refusal() const {
  return appleMusicNotSupported;
}

void AlphaViewForNowPlaying::press() {
  isShowingAppleMusicOffer_ = platform_.musicPlayer.presentOffer();
  changed();
}

} // namespace vitrelle
