// Asks the user whether the application may know where the device is. He is asked once; after that
// his answer stands until he changes it in the settings.
#pragma once

#include "core/platform/Platform.h"
#include "core/platform/Screen.h"

namespace vitrelle {

class LocationQuestion final : public Screen {
 public:
  /// The platform must outlive it.
  explicit LocationQuestion(const Platform& platform) : platform_(platform) {}

  bool shown() const { return shown_; }
  /// Shows the question to a user who has not answered it.
  void ask();
  void allow() { answer(AuthorizationStatus::authorizedWhenInUse); }
  void deny() { answer(AuthorizationStatus::denied); }
  /// Leaves it open; the next program asks again.
  void dismiss();

 private:
  void answer(AuthorizationStatus permission);

  const Platform& platform_;
  bool shown_ = false;
};

} // namespace vitrelle
