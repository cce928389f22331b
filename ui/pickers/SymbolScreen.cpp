#include "ui/pickers/SymbolScreen.h"

#include "ui/parts/QtText.h"

namespace vitrelle::ui {

SymbolScreen::SymbolScreen(const Platform& platform)
    : picker_(
          platform, Category::objects, Axis::vertical, true,
          [this](std::string_view name) { Q_EMIT picked(qText(name)); },
          [this] { Q_EMIT dismissed(); }) {
  for (const std::string_view name : picker_.names())
    names_ += qText(name);
}

void SymbolScreen::select(int index) const {
  if (index < 0 || index >= names_.size()) return;
  picker_.select(picker_.names()[static_cast<std::size_t>(index)]);
}

} // namespace vitrelle::ui
