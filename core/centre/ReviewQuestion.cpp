#include "core/centre/ReviewQuestion.h"

#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

namespace vitrelle {

void ReviewQuestion::ask() {
  const auto closed = GroupStore(platform_).read(keys::reviewClosed);
  if (asked_ || !closed || closed->value_or(false)) return;
  asked_ = shown_ = true;
  changed();
}

void ReviewQuestion::dismiss() {
  if (!shown_) return;
  shown_ = false;
  changed();
}

void ReviewQuestion::close() {
  if (!shown_) return;
  GroupStore(platform_).set(keys::reviewClosed, true);
  dismiss();
}

} // namespace vitrelle
