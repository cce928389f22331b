#include "core/app/Navigation.h"

namespace vitrelle {

void Navigation::open(std::string_view name, std::optional<StyleNumber> style) {
  if (name == root) return;
  screens_.push_back({.name = std::string(name), .style = style, .ticket = ++tickets_});
  changed();
}

void Navigation::back() {
  if (screens_.size() == 1) return;
  screens_.pop_back();
  changed();
}

} // namespace vitrelle
