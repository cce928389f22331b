// The towns of the world, from the tables of GeoNames.
#pragma once

#include "core/platform/Geocoder.h"
#include "core/platform/Result.h"
#include "host/places/SphereTree.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle::host {

class CityList final {
 public:
  /// From lines of columns divided by tabulators: one line a town, and one a country. Lines that
  /// are damaged are left out, and so is the word for a country of such a line; fails where no town
  /// is left.
  static Result<CityList> parse(std::string_view cities, std::string_view countries);

  /// Null where none is within 50 km.
  const City* nearest(const Coordinate& position) const;

  /// Those of that name, then those whose name, or a word in it, begins like this; within both the
  /// own names come before those in other languages, and then the larger towns. Whatever case,
  /// accents and punctuation are. Of names in other languages no words are looked for: many have
  /// the name of the state behind them.
  std::vector<City> search(std::string_view words, std::size_t most);

 private:
  struct Town {
    City city;
    double population = 0;
    std::string spelling;  ///< without accents, as the table has it
    std::string elsewhere; ///< the names in other languages, divided by commas
  };
  /// Each name on a line of its own, simplified.
  struct Names {
    std::string own;
    std::string elsewhere;
  };
  explicit CityList(std::vector<Town> towns);
  const std::vector<Names>& names();

  std::vector<Town> towns_; ///< the largest first
  SphereTree tree_;
  std::vector<Names> names_; ///< of the towns; made for the first search
};

} // namespace vitrelle::host
