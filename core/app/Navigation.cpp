#include "core/app/Navigation.h"

#include <algorithm>

namespace vitrelle {

void Navigation::open(std::string_view name, std::optional<StyleNumber> style) {
  if (name == root) return;
  screens_.push_back({.name = std::string(name), .style = style, .ticket = ++tickets_});
  changed();
}

void Navigation::reveal(std::string_view name) {
  const auto found = std::find_if(screens_.rbegin(), screens_.rend(),
                                  [&](const OpenScreen& each) { return each.name == name; });
  if (found == screens_.rend()) return open(name);
  if (found == screens_.rbegin()) return;
  screens_.erase(found.base(), screens_.end());
  changed();
}

void Navigation::back() {
  if (screens_.size() == 1) return;
  screens_.pop_back();
  changed();
}

} // namespace vitrelle
