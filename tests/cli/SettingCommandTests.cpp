// The commands for what is set for all widgets: the plain date and the solid background.
#include "tests/cli/Program.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <fstream>

namespace vitrelle {
namespace {

using Json = nlohmann::json;
using test::Outcome;

class SettingCommandTest : public test::ProgramTest {
 protected:
  std::string stored(const char* key) const { return run({"defaults", "read", key}).output; }
};

TEST_F(SettingCommandTest, date_isWrittenAsTheScreensWriteIt) {
  EXPECT_EQ(run({"date"}).output, "font = \"Helvetica\"\nsize = 18\ncolour = FFFFFF\n");
  const Outcome written =
      run({"date", "--font", "Inter-Regular", "--size", "40", "--colour", "#ff800080"});
  EXPECT_EQ(written.status, 0) << written.complaints;
  EXPECT_EQ(written.output, "");
  EXPECT_EQ(stored("dateFontPicked"), "Inter-Regular\n");
  EXPECT_EQ(stored("dateFontSize"), "40\n");
  EXPECT_EQ(stored("dateColour"), "1.0,0.5019607843137255,0.0,0.5019607843137255\n");
  EXPECT_EQ(Json::parse(run({"date", "--size", "41", "--json"}).output),
            (Json{{"font", "Inter-Regular"}, {"size", 41}, {"colour", "FF800080"}}));
}

TEST_F(SettingCommandTest, background_isWrittenAsTheScreenWritesIt) {
  EXPECT_EQ(run({"background"}).output, "colour = none\non = false\n");
  ASSERT_EQ(run({"background", "--on"}).status, 0);
  EXPECT_EQ(run({"background"}).output, "colour = none\non = true\n");
  EXPECT_EQ(run({"defaults", "read", "backgroundSolid"}).status, 1) << "still without a colour";
  ASSERT_EQ(run({"background", "--colour", "336699", "--off"}).status, 0);
  EXPECT_EQ(stored("backgroundSolid"), "0.2,0.4,0.6,1.0\n");
  EXPECT_EQ(stored("solidEnabled"), "false\n");
  EXPECT_EQ(Json::parse(run({"background", "--json"}).output),
            (Json{{"colour", "336699"}, {"on", false}}));
  ASSERT_EQ(run({"defaults", "write", "backgroundSolid", "-string", "0.1,0.2"}).status, 0);
  EXPECT_EQ(Json::parse(run({"background", "--json"}).output).at("colour"), nullptr);
}

TEST_F(SettingCommandTest, wrongUsageAndALostStore_areTold) {
  using Arguments = std::vector<std::string>;
  for (const Arguments& arguments : {Arguments{"date", "--size", "9"},
                                     {"date", "--size", "81"},
                                     {"date", "--colour", "red"},
                                     {"background", "--on", "--off"},
                                     {"background", "--colour", "FFF"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments.back();
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: ")) << outcome.complaints;
  }
  std::filesystem::create_directories(home());
  std::ofstream(home() + "/group.quillmeresoftware.vitrelle.sqlite") << "this is no database";
  for (const Arguments& arguments : {Arguments{"date"},
                                     {"date", "--size", "20"},
                                     {"background"},
                                     {"background", "--colour", "336699"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 1) << arguments.front();
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: ")) << outcome.complaints;
    EXPECT_EQ(outcome.output, "");
  }
}

} // namespace
} // namespace vitrelle
