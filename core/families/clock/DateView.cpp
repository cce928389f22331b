#include "core/families/clock/DateView.h"

namespace vitrelle {

View DateView::view() const {
  if (!isDateLength(dateLength)) return hstack({});
  return hstack(
      {text(date, {.name = dateFont, .size = static_cast<double>(dateSize)}, dateColour)});
}

} // namespace vitrelle
