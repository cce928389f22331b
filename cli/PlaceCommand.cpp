#include "cli/Command.h"
#include "cli/CoordinateArgument.h"
#include "cli/OneLine.h"

#include "core/platform/Geocoder.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle::cli {

namespace {

using Cities = Result<std::vector<City>>;
using Placemarks = Result<std::vector<Placemark>>;

constexpr std::size_t mostCities = 20;

struct PlaceArguments {
  std::string place; ///< a name, or a position
  bool json = false;
};

/// What is written in digits is meant as a position.
std::string whyNoPlace(const std::string& text) {
  const bool isName = text.find_first_not_of("0123456789+-., ") != std::string::npos;
  if (isName || parseCoordinate(text)) return "";
  return "'" + text + "' is neither a name nor a position in degrees, such as 52.52,13.4";
}

std::string shown(double degrees) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), degrees).ptr;
  return {digits.data(), end};
}

void print(const nlohmann::ordered_json& document) {
  std::cout << document.dump(2) << '\n';
}

void print(const std::vector<City>& cities, bool json) {
  auto list = nlohmann::ordered_json::array();
  for (const auto& [name, country, position] : cities) {
    if (json) {
      list.push_back({{"name", name},
                      {"country", country},
                      {"latitude", position.latitude},
                      {"longitude", position.longitude}});
    } else {
      std::cout << oneLine(name) << '\t' << oneLine(country) << '\t' << shown(position.latitude)
                << ',' << shown(position.longitude) << '\n';
    }
  }
  if (json) print({{"cities", std::move(list)}});
}

void print(const std::vector<Placemark>& placemarks, bool json) {
  auto list = nlohmann::ordered_json::array();
  for (const Placemark& placemark : placemarks) {
    const std::string locality = placemark.locality.value_or("");
    if (json) {
      list.push_back({{"locality", locality}});
    } else {
      std::cout << oneLine(locality) << '\n';
    }
  }
  if (json) print({{"placemarks", std::move(list)}});
}

/// Waits for the answer and prints it; `why` tells what it means that it is empty.
template <class Answer>
Exit answer(const CommandContext& context, const PlaceArguments& told, const char* why,
            const std::function<Subscription(std::function<void(const Answer&)>)>& ask) {
  std::optional<Answer> answered;
  const Subscription asked = ask([&](const Answer& found) {
    answered = found;
    context.endLoop();
  });
  context.runLoop();
  if (!answered) return Exit::failed; // the user did not wait
  if (!*answered || (*answered)->empty()) {
    complain(*answered ? Failure{told.place, why} : answered->failure());
    return Exit::failed;
  }
  print(**answered, told.json);
  return Exit::done;
}

Exit run(const CommandContext& context, const PlaceArguments& told) {
  const Geocoder& geocoder = context.platform().geocoder;
  if (const auto position = parseCoordinate(told.place)) {
    return answer<Placemarks>(context, told, "there is no town near it", [&](auto completion) {
      return geocoder.reverseGeocodeLocation(*position, completion);
    });
  }
  return answer<Cities>(context, told, "no town has this name", [&](auto completion) {
    return geocoder.search(told.place, mostCities, completion);
  });
}

} // namespace

void addPlaceCommand(CLI::App& program, CommandContext& context) {
  const auto told = std::make_shared<PlaceArguments>();
  CLI::App* command = program.add_subcommand(
      "place", "Find towns by their name, or the name of the town at a position");
  command->add_option("PLACE", told->place, "A name or its beginning, in any spelling; or degrees")
      ->required()
      ->check(CLI::Validator(whyNoPlace, "NAME|LAT,LON"));
  command->add_flag("--json", told->json, "One JSON document");
  command->callback([told, &context] {
    if (context.handOver) {
      context.handOver();
      context.exit = Exit::failed;
      return;
    }
    context.exit = run(context, *told);
  });
}

} // namespace vitrelle::cli
