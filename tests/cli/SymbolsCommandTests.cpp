#include "tests/cli/Program.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <map>

namespace vitrelle {
namespace {

using Json = nlohmann::json;

class SymbolsCommandTest : public test::ProgramTest {
 protected:
  std::string file() const { return (folder / "symbols.png").string(); }
};

TEST_F(SymbolsCommandTest, list_tellsWherePicturesComeFrom) {
  const Json symbols = Json::parse(run({"symbols", "--json"}).output).at("symbols");
  EXPECT_EQ(symbols.size(), 2893U);
  const Json first = {{"category", "Communication"}, {"name", "mic"}, {"from", "icon"}};
  EXPECT_EQ(symbols.front(), first);
  std::map<std::string, std::map<std::string, int>> names; // by where they come from
  for (const Json& symbol : symbols)
    ++names[symbol.at("from")][symbol.at("name")];
  EXPECT_TRUE(names["icon"].contains("gearshape"));
  EXPECT_TRUE(names["composition"].contains("50.square.fill"));
  EXPECT_TRUE(names["drawing"].contains("tuningfork"));
  EXPECT_LE(names["lettered square"].size(), 128U);
  EXPECT_EQ(names.size(), 4U) << "and from nothing else";
  EXPECT_EQ(names["composition"]["pencil.circle"], 2) << "it stands in two lists";
}

TEST_F(SymbolsCommandTest, category_isTakenInAnyCase) {
  const std::string list = run({"symbols", "keyboard"}).output;
  EXPECT_TRUE(list.starts_with("KeyBoard\tcommand\ticon\n")) << list;
  EXPECT_EQ(std::ranges::count(list, '\n'), 61);
  EXPECT_EQ(run({"symbols", "KeyBoard"}).output, list);
}

TEST_F(SymbolsCommandTest, sheet_hasACellForEachSymbol) {
  const test::Outcome drawn = run({"symbols", "time", "--sheet", file(), "--scale", "2"});
  ASSERT_EQ(drawn.status, 0) << drawn.complaints;
  EXPECT_EQ(drawn.output, "");
  const Bitmap sheet = readPicture(file());
  EXPECT_EQ(sheet.size, (PixelSize{2 * 5 * 64, 2 * 5 * 62})) << "24 symbols";
  const auto brightestOfCell = [&](int column, int row) {
    std::uint8_t brightest = 0;
    for (int y = row * 124; y < (row + 1) * 124; ++y)
      for (int x = column * 128; x < (column + 1) * 128; ++x)
        brightest = std::max(brightest, sheet.row(y)[4 * x]);
    return brightest;
  };
  for (int cell = 0; cell < 24; ++cell)
    EXPECT_GT(brightestOfCell(cell % 5, cell / 5), 240) << cell;
  EXPECT_LT(brightestOfCell(4, 4), 40) << "there is no such symbol";
  EXPECT_EQ(Json::parse(run({"symbols", "time", "--json", "--sheet", file()}).output)
                .at("symbols")
                .size(),
            24U);
}

TEST_F(SymbolsCommandTest, sheet_hasColoursWhereAsked) {
  const auto isGrey = [&](const test::Outcome& drawn) {
    EXPECT_EQ(drawn.status, 0) << drawn.complaints;
    const Bitmap sheet = readPicture(file());
    const std::uint8_t* sun = sheet.row(19) + 4 * (64 + 32); // the second symbol
    return std::abs(sun[0] - sun[2]) < 8;
  };
  EXPECT_TRUE(isGrey(run({"symbols", "weather", "--sheet", file()})));
  EXPECT_FALSE(isGrey(run({"symbols", "weather", "--sheet", file(), "--own-colours"})));
}

TEST_F(SymbolsCommandTest, wrongUsage_isTold) {
  using Arguments = std::vector<std::string>;
  for (const Arguments& arguments : {Arguments{"symbols", "plants"},
                                     {"symbols", "none"},
                                     {"symbols", "--scale", "2"},
                                     {"symbols", "--own-colours"}}) {
    const test::Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments.back();
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: ")) << outcome.complaints;
  }
  EXPECT_EQ(run({"symbols", "time", "--sheet", "/proc/none/sheet.png"}).status, 1);
}

} // namespace
} // namespace vitrelle
