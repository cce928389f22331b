// What all screens have in common: they tell whoever draws them that there is something new to see.
#pragma once

#include "core/platform/Subscription.h"

#include <functional>
#include <utility>

namespace vitrelle {

/// A view reads what it shows anew at each change; it is told of no details.
class Screen {
 public:
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  Subscription onChange(std::function<void()> view) { return views_.add(std::move(view)); }

 protected:
  Screen() = default;
  ~Screen() = default;

  void changed() const { views_.notify(); }

 private:
  Subscribers<> views_;
};

} // namespace vitrelle
