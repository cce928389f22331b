#include "core/families/clock/Moment.h"

namespace vitrelle {

double secondsOfToday(const Platform& platform) {
  const Date now = platform.dateTime.now();
  return now.secondsSinceReferenceDate -
         platform.dateTime.startOfDay(now).secondsSinceReferenceDate;
}

std::string timeInWords(const Platform& platform) {
  return platform.dateTime.text(platform.dateTime.now(), FormatterStyle::none,
                                FormatterStyle::shortForm);
}

std::string dateInWords(const Platform& platform, FormatterStyle form) {
  return platform.dateTime.text(platform.dateTime.now(), form, FormatterStyle::none);
}

FormatterStyle dateStyle(std::int64_t length) {
  return length == 1 ? FormatterStyle::full : FormatterStyle::shortForm;
}

} // namespace vitrelle
