#include "host/location/KeptChoice.h"

#include "host/files/PendingFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace vitrelle::host {

namespace {

template <class Value>
struct Word {
  Value value;
  std::string_view word;
};

constexpr Word<AuthorizationStatus> permissions[] = {
    {AuthorizationStatus::notDetermined, "notDetermined"},
    {AuthorizationStatus::denied, "denied"},
    {AuthorizationStatus::authorizedAlways, "authorizedAlways"},
    {AuthorizationStatus::authorizedWhenInUse, "authorizedWhenInUse"}};

constexpr Word<LocationSource> locationSources[] = {{LocationSource::none, "none"},
                                                    {LocationSource::desktop, "desktop"},
                                                    {LocationSource::place, "place"}};

template <class Words, class Value>
void take(const std::string& text, const Words& words, Value& value) {
  for (const auto& known : words)
    if (known.word == text) value = known.value;
}

template <class Words, class Value>
std::string_view wordOf(const Words& words, Value value) {
  for (const auto& known : words)
    if (known.value == value) return known.word;
  return {};
}

std::optional<double> degrees(const std::string& text, double most) {
  double value = 0;
  const auto [behind, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool isWhole = error == std::errc() && behind == text.data() + text.size();
  if (!isWhole || !(value >= -most && value <= most)) return std::nullopt;
  return value;
}

std::string text(double value) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  return {digits.data(), end};
}

std::string oneLine(std::string name) {
  std::ranges::replace(name, '\n', ' ');
  return name;
}

std::map<std::string, std::string> linesOf(const std::string& text) {
  std::map<std::string, std::string> lines;
  std::istringstream file(text);
  for (std::string line; std::getline(file, line);) {
    const std::size_t equals = line.find('=');
    if (equals != std::string::npos) lines[line.substr(0, equals)] = line.substr(equals + 1);
  }
  return lines;
}

} // namespace

LocationChoice keptChoice(const HomeFolder& home) {
  auto lines = linesOf(readSmallFile(home.locationFile()).value_or(""));
  LocationChoice choice;
  take(lines["permission"], permissions, choice.permission);
  take(lines["source"], locationSources, choice.source);
  const auto latitude = degrees(lines["latitude"], 90);
  const auto longitude = degrees(lines["longitude"], 180);
  if (latitude && longitude && !lines["city"].empty())
    choice.city = City{lines["city"], lines["country"], {*latitude, *longitude}};
  return choice;
}

Status keepChoice(const HomeFolder& home, const LocationChoice& choice) {
  std::ostringstream file;
  file << "permission=" << wordOf(permissions, choice.permission) << '\n'
       << "source=" << wordOf(locationSources, choice.source) << '\n';
  if (choice.city) {
    file << "latitude=" << text(choice.city->position.latitude) << '\n'
         << "longitude=" << text(choice.city->position.longitude) << '\n'
         << "city=" << oneLine(choice.city->name) << '\n'
         << "country=" << oneLine(choice.city->country) << '\n';
  }
  const std::string lines = file.str();
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(lines.data());
  return replaceFile(home, home.locationFile(), {bytes, lines.size()});
}

} // namespace vitrelle::host
