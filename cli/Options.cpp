#include "cli/Options.h"

#include "cli/CoordinateArgument.h"
#include "cli/Numbers.h"
#include "core/platform/Battery.h"
#include "core/slicing/DeviceNames.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdlib>
#include <string_view>

namespace vitrelle::cli {

namespace {

std::optional<std::string> environment(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr || *value == '\0') return std::nullopt;
  return value;
}

bool sameInAnyCase(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, [](unsigned char a, unsigned char b) {
    return std::tolower(a) == std::tolower(b);
  });
}

/// Letters, digits, a comma, digits: "iPhone99,1".
bool looksLikeIdentifier(std::string_view text) {
  const auto isLetter = [](unsigned char c) { return std::isalpha(c) != 0; };
  const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
  const auto letters = std::ranges::find_if_not(text, isLetter);
  const auto comma = std::find_if_not(letters, text.end(), isDigit);
  return letters != text.begin() && comma != letters && comma != text.end() && *comma == ',' &&
         comma + 1 != text.end() && std::all_of(comma + 1, text.end(), isDigit);
}

// Each is told by whom it is told, the option or the variable, to blame it.

std::string takePhone(const char* name, const std::string& text) {
  const auto identifier = phoneIdentifier(text);
  if (!identifier) {
    throw CLI::ValidationError(name,
                               "there is no phone '" + text + "'; 'vitrelle phones' lists them");
  }
  return *identifier;
}

OsVersion takeOs(const char* name, const std::string& text) {
  const auto version = parseOsVersion(text);
  if (!version) throw CLI::ValidationError(name, "'" + text + "' is no version such as 18.0");
  return *version;
}

bool takeBool(const char* name, const std::string& text) {
  for (const char* yes : {"1", "true", "yes"}) {
    if (sameInAnyCase(text, yes)) return true;
  }
  for (const char* no : {"0", "false", "no"}) {
    if (sameInAnyCase(text, no)) return false;
  }
  throw CLI::ValidationError(name, "'" + text + "' is neither true nor false");
}

AppearanceChoice takeAppearance(const char* name, const std::string& text) {
  using enum AppearanceChoice;
  for (const AppearanceChoice each : {desktop, light, dark}) {
    if (text == describe(each)) return each;
  }
  throw CLI::ValidationError(name, "'" + text + "' is neither light nor dark nor desktop");
}

ToldTime takeTime(const char* name, const std::string& text) {
  const auto time = parseTime(text);
  if (!time)
    throw CLI::ValidationError(name, "'" + text + "' is no time such as 2026-11-21T13:30:00");
  return *time;
}

float takeBattery(const char* name, const std::string& text) {
  const auto level = decimalNumber(text);
  if (!level || !((*level >= 0 && *level <= 1) || *level == unknownBatteryLevel))
    throw CLI::ValidationError(name, "'" + text + "' is neither from 0 to 1 nor -1");
  return static_cast<float>(*level);
}

/// An address that begins as one of the web and names a server, without blanks and the like.
std::string takeWebAddress(const char* name, const std::string& text) {
  for (const std::string_view scheme : {"https://", "http://"}) {
    if (!text.starts_with(scheme)) continue;
    const std::string_view rest = std::string_view(text).substr(scheme.size());
    const bool namesServer =
        !rest.empty() && std::isalnum(static_cast<unsigned char>(rest[0])) != 0;
    const bool isPlain = std::ranges::all_of(rest, [](char c) { return c > ' ' && c <= '~'; });
    if ((namesServer || rest.starts_with('[')) && isPlain) return text;
  }
  throw CLI::ValidationError(name, "'" + text + "' is no address such as https://example.org/path");
}

Coordinate takeLocation(const char* name, const std::string& text) {
  const auto position = parseCoordinate(text);
  if (!position)
    throw CLI::ValidationError(name,
                               "'" + text + "' is no position in degrees, such as 52.52,13.4");
  return *position;
}

} // namespace

void addOptions(CLI::App& program, Options& options) {
  constexpr const char* group = "Options of every command";
  program
      .add_option_function<std::string>(
          "--home",
          [&](const std::string& text) {
            if (text.empty()) throw CLI::ValidationError("--home", "the folder has no name");
            options.home = text;
          },
          "The folder of all that is kept ($VITRELLE_HOME)")
      ->type_name("DIR")
      ->group(group);
  program
      .add_option_function<std::string>(
          "--phone",
          [&](const std::string& text) {
            options.phoneIdentifier = takePhone("--phone", text);
            options.phoneTold = true;
          },
          "The phone, by name or machine identifier ($VITRELLE_PHONE)")
      ->type_name("PHONE")
      ->group(group);
  program
      .add_option_function<std::string>(
          "--os",
          [&](const std::string& text) {
            options.os = takeOs("--os", text);
            options.phoneTold = true;
          },
          "The version of its operating system ($VITRELLE_OS)")
      ->type_name("VERSION")
      ->group(group);
  const auto zoom = [&](const char* name, bool zoomed, const char* description) {
    return program
        .add_flag_callback(
            name,
            [&options, zoomed] {
              options.zoomed = zoomed;
              options.phoneTold = true;
              options.standardTold = !zoomed;
            },
            description)
        ->group(group);
  };
  CLI::Option* zoomed = zoom("--zoomed", true, "Its display is zoomed ($VITRELLE_ZOOMED)");
  zoom("--standard", false, "Its display is not zoomed")->excludes(zoomed);
  program
      .add_option_function<std::string>(
          "--appearance",
          [&](const std::string& text) {
            options.appearance = takeAppearance("--appearance", text);
            options.phoneTold = true;
          },
          "light, dark or as the desktop is ($VITRELLE_APPEARANCE)")
      ->type_name("NAME")
      ->group(group);
  program
      .add_option_function<std::string>(
          "--now", [&](const std::string& text) { options.now = takeTime("--now", text); },
          "Let the time stand still, at 2026-11-21T13:30:00 or with a Z or +hh:mm behind it "
          "($VITRELLE_NOW)")
      ->type_name("TIME")
      ->group(group);
  program
      .add_option_function<std::string>(
          "--battery",
          [&](const std::string& text) { options.battery = takeBattery("--battery", text); },
          "Take the battery to be so full, from 0 to 1, or -1 for unknown ($VITRELLE_BATTERY)")
      ->type_name("LEVEL")
      ->group(group);
  program
      .add_option_function<std::string>(
          "--weather-url",
          [&](const std::string& text) {
            options.weatherUrl = takeWebAddress("--weather-url", text);
          },
          "Ask this service for the weather, one that answers as api.met.no does "
          "($VITRELLE_WEATHER_URL)")
      ->type_name("URL")
      ->group(group);
  program
      .add_option_function<std::string>(
          "--location",
          [&](const std::string& text) { options.location = takeLocation("--location", text); },
          "Take the device to be there, in degrees, north and east positive ($VITRELLE_LOCATION)")
      ->type_name("LAT,LON")
      ->group(group);
  program.add_flag("--verbose", options.verbose, "Show the debug console on stderr")->group(group);
}

void readEnvironment(Options& options) {
  if (const auto text = environment("VITRELLE_PHONE"); text && !options.phoneIdentifier) {
    options.phoneIdentifier = takePhone("VITRELLE_PHONE", *text);
  }
  if (const auto text = environment("VITRELLE_OS"); text && !options.os) {
    options.os = takeOs("VITRELLE_OS", *text);
  }
  if (const auto text = environment("VITRELLE_ZOOMED"); text && !options.zoomed) {
    options.zoomed = takeBool("VITRELLE_ZOOMED", *text);
  }
  if (const auto text = environment("VITRELLE_APPEARANCE"); text && !options.appearance) {
    options.appearance = takeAppearance("VITRELLE_APPEARANCE", *text);
  }
  if (const auto text = environment("VITRELLE_NOW"); text && !options.now) {
    options.now = takeTime("VITRELLE_NOW", *text);
  }
  if (const auto text = environment("VITRELLE_BATTERY"); text && !options.battery) {
    options.battery = takeBattery("VITRELLE_BATTERY", *text);
  }
  if (const auto text = environment("VITRELLE_WEATHER_URL"); text && !options.weatherUrl) {
    options.weatherUrl = takeWebAddress("VITRELLE_WEATHER_URL", *text);
  }
  if (const auto text = environment("VITRELLE_LOCATION"); text && !options.location) {
    options.location = takeLocation("VITRELLE_LOCATION", *text);
  }
  // The host reads VITRELLE_HOME.
}

std::optional<std::string> phoneIdentifier(const std::string& nameOrIdentifier) {
  for (const DeviceNameRow& row : deviceNameRows()) {
    if (row.identifier == nameOrIdentifier || sameInAnyCase(row.name, nameOrIdentifier)) {
      return std::string(row.identifier);
    }
  }
  if (looksLikeIdentifier(nameOrIdentifier)) return nameOrIdentifier;
  return std::nullopt;
}

std::string_view describe(AppearanceChoice appearance) {
  switch (appearance) {
  case AppearanceChoice::light:
    return "light";
  case AppearanceChoice::dark:
    return "dark";
  case AppearanceChoice::desktop:
    return "desktop";
  }
  return {};
}

std::optional<OsVersion> parseOsVersion(const std::string& text) {
  OsVersion version;
  const char* next = text.data();
  const char* const end = next + text.size();
  for (std::int64_t* number : {&version.major, &version.minor, &version.patch}) {
    const auto [behind, error] = std::from_chars(next, end, *number);
    if (error != std::errc() || *number < 0 || *number > 99'999'999) return std::nullopt;
    if (behind == end) return version;
    if (*behind != '.') return std::nullopt;
    next = behind + 1;
  }
  return std::nullopt;
}

std::string describe(const OsVersion& version) {
  std::string text = std::to_string(version.major) + "." + std::to_string(version.minor);
  if (version.patch != 0) text += "." + std::to_string(version.patch);
  return text;
}

} // namespace vitrelle::cli
