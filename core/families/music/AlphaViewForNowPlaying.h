// The gate before the Music family: only those pass who have music to play.
#pragma once

#include "core/lifecycle/Gate.h"
#include "core/platform/Platform.h"

namespace vitrelle {

class AlphaViewForNowPlaying final : public Gate {
 public:
  /// The platform must outlive it.
  explicit AlphaViewForNowPlaying(const Platform& platform) : platform_(platform) {}

  /// Asks anew; what was answered before stands until then.
  void appear() override;
  GateState state() const override;
  const GateRefusal& refusal() const override;
  /// Presents the offer.
  void press() override;

  /// Whether the offer could be shown, since it was last asked for.
  bool isShowingAppleMusicOffer() const { return isShowingAppleMusicOffer_; }

 private:
  const Platform& platform_;
  bool loaded_ = false;
  bool status_ = false;
  bool isShowingAppleMusicOffer_ = false;
  Subscription asked_; ///< last, for it calls this screen
};

} // namespace vitrelle
