#include "core/slicing/PositionIntents.h"

#include <cstddef>

namespace vitrelle {

WidgetLocationImageNames slotAt(WidgetFamily size, std::int64_t position) {
  const auto all = slots(size);
  if (position < 1 || position > std::ssize(all)) return WidgetLocationImageNames::error;
  return all[static_cast<std::size_t>(position - 1)];
}

} // namespace vitrelle
