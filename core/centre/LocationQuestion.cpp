#include "core/centre/LocationQuestion.h"

namespace vitrelle {

void LocationQuestion::ask() {
  const AuthorizationStatus now = platform_.locationSettings.current().permission;
  if (shown_ || now != AuthorizationStatus::notDetermined) return;
  shown_ = true;
  changed();
}

void LocationQuestion::dismiss() {
  if (!shown_) return;
  shown_ = false;
  changed();
}

void LocationQuestion::answer(AuthorizationStatus permission) {
  if (!shown_) return;
  LocationChoice choice = platform_.locationSettings.current();
  choice.permission = permission;
  // An answer that can't be kept holds for this program.
  if (const Status kept = platform_.locationSettings.save(choice); !kept)
    platform_.debugConsole.print(kept.failure().what + ": " + kept.failure().why);
  dismiss();
}

} // namespace vitrelle
