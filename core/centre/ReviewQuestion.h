// The desktop's own request for a review. It is shown at most once in a run, and never again once
// it has been answered or closed for good.
#pragma once

#include "core/platform/Platform.h"
#include "core/platform/Screen.h"

namespace vitrelle {

class ReviewQuestion final : public Screen {
 public:
  /// The platform must outlive it.
  explicit ReviewQuestion(const Platform& platform) : platform_(platform) {}

  bool shown() const { return shown_; }
  void ask();
  /// Leaves it for another time.
  void dismiss();
  /// It is not made again: the user has answered it, or does not want to be asked.
  void close();

 private:
  const Platform& platform_;
  bool shown_ = false;
  bool asked_ = false;
};

} // namespace vitrelle
