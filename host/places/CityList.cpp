#include "host/places/CityList.h"

#include "host/places/PlainText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <system_error>
#include <utility>

namespace vitrelle::host {

namespace {

constexpr double reachMetres = 50'000;
/// The kind of a part of a town, which would hide the town it is in.
constexpr std::string_view section = "PPLX";

/// The columns that are of use.
namespace cityColumn {
constexpr std::size_t name = 1;
constexpr std::size_t spelling = 2;
constexpr std::size_t elsewhere = 3;
constexpr std::size_t latitude = 4;
constexpr std::size_t longitude = 5;
constexpr std::size_t kind = 7;
constexpr std::size_t country = 8;
constexpr std::size_t population = 14;
constexpr std::size_t count = 15;
} // namespace cityColumn

namespace countryColumn {
constexpr std::size_t code = 0;
constexpr std::size_t name = 4;
constexpr std::size_t count = 5;
} // namespace countryColumn

/// The first columns of each line that has so many.
template <std::size_t count>
void forEachLine(std::string_view text,
                 const std::function<void(const std::array<std::string_view, count>&)>& call) {
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    std::array<std::string_view, count> columns;
    std::size_t begin = 0;
    std::size_t read = 0;
    for (; read < count && begin <= line.size(); ++read) {
      columns[read] = line.substr(begin, line.find('\t', begin) - begin);
      begin += columns[read].size() + 1;
    }
    if (read == count) call(columns);
  }
}

std::optional<double> number(std::string_view text, double lowest, double highest) {
  double value = 0;
  const auto [behind, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool isWhole = error == std::errc() && behind == text.data() + text.size();
  if (!isWhole || !(value >= lowest && value <= highest)) return std::nullopt;
  return value;
}

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

/// Each on a line of its own behind a blank, so that names and words in them begin alike.
std::string lines(std::string_view names) {
  std::string text = "\n ";
  for (const char c : names)
    c == '\n' ? text += "\n " : text += c;
  return text + "\n";
}

} // namespace

Result<CityList> CityList::parse(std::string_view cities, std::string_view countries) {
  std::map<std::string_view, std::string_view> words; // by their codes
  forEachLine<countryColumn::count>(countries, [&](const auto& columns) {
    const std::string_view code = columns[countryColumn::code];
    const std::string_view name = columns[countryColumn::name];
    if (!code.starts_with('#') && isSoundName(name)) words.emplace(code, name);
  });
  std::vector<Town> towns;
  forEachLine<cityColumn::count>(cities, [&](const auto& columns) {
    const auto latitude = number(columns[cityColumn::latitude], -90, 90);
    const auto longitude = number(columns[cityColumn::longitude], -180, 180);
    const std::string_view name = columns[cityColumn::name];
    const std::string_view code = columns[cityColumn::country];
    if (!latitude || !longitude || !isSoundName(name) || !isSoundName(code)) return;
    if (columns[cityColumn::kind] == section) return;
    const auto word = words.find(code);
    towns.push_back({.city = {.name = std::string(name),
                              .country = std::string(word == words.end() ? code : word->second),
                              .position = {*latitude, *longitude}},
                     .population = number(columns[cityColumn::population], 0, HUGE_VAL).value_or(0),
                     .spelling = std::string(columns[cityColumn::spelling]),
                     .elsewhere = std::string(columns[cityColumn::elsewhere])});
  });
  if (towns.empty()) return Failure{"the list of towns", "it has none"};
  std::ranges::stable_sort(towns, std::greater<>(), &Town::population);
  return CityList(std::move(towns));
}

CityList::CityList(std::vector<Town> towns)
    : towns_(std::move(towns)), tree_([this] {
        std::vector<Coordinate> positions;
        positions.reserve(towns_.size());
        for (const Town& town : towns_)
          positions.push_back(town.city.position);
        return SphereTree(positions);
      }()) {}

const City* CityList::nearest(const Coordinate& position) const {
  const auto index = tree_.nearest(position, reachMetres);
  return index ? &towns_[*index].city : nullptr;
}

std::vector<City> CityList::search(std::string_view words, std::size_t most) {
  const std::string wanted = plainText(words);
  if (wanted.empty()) return {};
  const std::string whole = lines(wanted);
  const std::string begun = "\n " + wanted;
  const std::string wordBegun = " " + wanted;
  std::array<std::vector<std::size_t>, 4> found; // the likeliest first
  for (std::size_t i = 0; i < towns_.size(); ++i) {
    const auto& [own, elsewhere] = names()[i];
    const bool matches[] = {contains(own, whole), contains(elsewhere, whole),
                            contains(own, wordBegun), contains(elsewhere, begun)};
    const auto rank = static_cast<std::size_t>(std::ranges::find(matches, true) - matches);
    if (rank < found.size() && found[rank].size() < most) found[rank].push_back(i);
  }
  std::vector<City> cities;
  for (const std::vector<std::size_t>& alike : found) {
    for (const std::size_t i : alike)
      if (cities.size() < most) cities.push_back(towns_[i].city);
  }
  return cities;
}

const std::vector<CityList::Names>& CityList::names() {
  if (!names_.empty()) return names_;
  names_.reserve(towns_.size());
  for (Town& town : towns_) {
    names_.push_back({.own = lines(plainText(town.city.name) + "\n" + plainText(town.spelling)),
                      .elsewhere = lines(plainText(std::exchange(town.elsewhere, {})))});
  }
  return names_;
}

} // namespace vitrelle::host
