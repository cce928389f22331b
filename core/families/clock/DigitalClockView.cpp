#include "core/families/clock/DigitalClockView.h"

#include "core/drawing/JoinedText.h"
#include "core/families/clock/DateView.h"

namespace vitrelle {

View DigitalClockView::view() const {
  const Font timeFont{
      .name = digitalFont, .size = static_cast<double>(digitalSize), .evenDigits = true};
  if (!dateEnabled) return hstack({text(time, timeFont, digitalColour)});
  if (!isDateLength(dateLength)) return hstack({});
  return hstack(
      {joined({time, timeFont, digitalColour}, {", ", {.size = 16}, digitalColour}),
       text(date, {.name = dateFont, .size = static_cast<double>(dateSize)}, dateColour)});
}

} // namespace vitrelle
