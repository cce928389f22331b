#include "core/pickers/SFSymbolsPicker.h"

#include "core/platform/FatalError.h"

#include <string>

namespace vitrelle {

const std::vector<std::string_view>& SFSymbolsPicker::names() const {
  const std::string_view wanted = label(category_);
  const auto found = symbolCatalogue().find(wanted);
  if (found == symbolCatalogue().end()) {
    fatalError("the catalogue has no list '" + std::string(wanted) + "'");
  }
  return found->second;
}

void SFSymbolsPicker::select(std::string_view name) const {
  picked_(name);
  if (haptic_) platform_.haptics.mediumImpact();
}

} // namespace vitrelle
