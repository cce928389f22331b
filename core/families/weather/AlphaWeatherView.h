// The gate before the Weather family: nobody passes whose position the application may not know.
#pragma once

#include "core/families/weather/LocationManager.h"
#include "core/lifecycle/Gate.h"

namespace vitrelle {

class AlphaWeatherView final : public Gate {
 public:
  /// The platform must outlive it.
  explicit AlphaWeatherView(const Platform& platform);

  /// Says on the debug console how things stand.
  void appear() override;
  GateState state() const override;
  const GateRefusal& refusal() const override;
  void press() override;

 private:
  const Platform& platform_;
  LocationManager locationManager_;
  Subscription view_;
};

} // namespace vitrelle
