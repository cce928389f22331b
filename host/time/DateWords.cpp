#include "host/time/DateWords.h"

#include "host/time/Clock.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/simpletz.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace vitrelle::host {

namespace {

constexpr double millisecond = 1000;        // in one second
constexpr double referenceDate = 978307200; // in seconds since 1970

/// What follows the "@" of a locale where it names a script; the rest of them change no date.
constexpr std::pair<std::string_view, std::string_view> scripts[] = {
    {"latin", "Latn"}, {"cyrillic", "Cyrl"}, {"devanagari", "Deva"}, {"iqtelif", "Latn"}};

std::string localeOfEnvironment() {
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    const char* const value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

bool hasWords(const icu::Locale& locale) {
  int32_t count = 0;
  const icu::Locale* const known = icu::Locale::getAvailableLocales(count);
  return std::any_of(known, known + count, [&](const icu::Locale& one) {
    return std::string_view(one.getLanguage()) == locale.getLanguage();
  });
}

/// The C library is right about what clocks show, such as by a rule in TZ itself; the formatter
/// knows more of the zones it has names for.
std::unique_ptr<icu::TimeZone> zoneAt(const Date& moment, UDate date) {
  std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::detectHostTimeZone());
  const auto shown = static_cast<int32_t>(secondsFromUtc(moment) * millisecond);
  int32_t standard = 0;
  int32_t summer = 0;
  UErrorCode error = U_ZERO_ERROR;
  zone->getOffset(date, false, standard, summer, error);
  if (U_SUCCESS(error) != 0 && standard + summer == shown) return zone;
  return std::make_unique<icu::SimpleTimeZone>(shown, icu::UnicodeString());
}

icu::DateFormat::EStyle formatterStyle(FormatterStyle style) {
  switch (style) {
  case FormatterStyle::none:
    return icu::DateFormat::kNone;
  case FormatterStyle::shortForm:
    return icu::DateFormat::kShort;
  case FormatterStyle::medium:
    return icu::DateFormat::kMedium;
  case FormatterStyle::longForm:
    return icu::DateFormat::kLong;
  case FormatterStyle::full:
    return icu::DateFormat::kFull;
  }
  return icu::DateFormat::kNone;
}

std::string words(const Date& moment, FormatterStyle date, FormatterStyle time) {
  if (date == FormatterStyle::none && time == FormatterStyle::none) return {};
  const auto locale = icu::Locale(formatterLocale(localeOfEnvironment()).c_str());
  const std::unique_ptr<icu::DateFormat> format(
      icu::DateFormat::createDateTimeInstance(formatterStyle(date), formatterStyle(time), locale));
  if (format == nullptr) return {};
  const UDate milliseconds = (moment.secondsSinceReferenceDate + referenceDate) * millisecond;
  format->adoptTimeZone(zoneAt(moment, milliseconds).release());
  icu::UnicodeString text;
  std::string bytes;
  return format->format(milliseconds, text).toUTF8String(bytes);
}

} // namespace

std::string formatterLocale(const std::string& name) {
  const std::size_t end = std::min(name.find_first_of(".@"), name.size());
  const std::size_t at = name.find('@');
  icu::Locale locale(name.substr(0, end).c_str());
  if (!hasWords(locale)) return "en_US";
  if (at == std::string::npos) return locale.getName();
  const std::string modifier = name.substr(at + 1);
  const auto* const script =
      std::ranges::find(scripts, modifier, &std::pair<std::string_view, std::string_view>::first);
  if (script == std::end(scripts)) return locale.getName();
  return std::string(locale.getLanguage()) + "_" + std::string(script->second) + "_" +
         locale.getCountry();
}

void useDateWords(Platform& platform) {
  platform.dateTime.text = words;
}

} // namespace vitrelle::host
