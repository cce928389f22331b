// A few towns in the columns of the list.
#pragma once

#include <string>

namespace vitrelle::test {

struct TownLine {
  std::string name;
  std::string spelling;
  std::string elsewhere;
  std::string latitude;
  std::string longitude;
  std::string country;
  std::string population;
  std::string kind = "PPL";
};

inline std::string line(const TownLine& town) {
  return "1\t" + town.name + "\t" + town.spelling + "\t" + town.elsewhere + "\t" + town.latitude +
         "\t" + town.longitude + "\tP\t" + town.kind + "\t" + town.country + "\t\t01\t\t\t\t" +
         town.population + "\t\t5\tEurope/Berlin\t2014-10-07\n";
}

inline std::string countryLine(const std::string& code, const std::string& name) {
  return code + "\tXXX\t000\tXX\t" + name + "\tCapital\t1\t2\tEU\n";
}

} // namespace vitrelle::test
