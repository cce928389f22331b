#include "tests/cli/Program.h"
#include "tests/support/Fakes.h"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include <sys/personality.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace vitrelle {
namespace {

using Json = nlohmann::json;
using test::Outcome;

std::string hexadecimal(std::string_view text) {
  std::string hex;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    constexpr const char* digits = "0123456789abcdef";
    hex += {digits[byte >> 4], digits[byte & 15]};
  }
  return hex;
}

class CommandTest : public test::ProgramTest {};

TEST_F(CommandTest, phone_isToldByOptionThenEnvironmentThenSavedChoice) {
  const auto current = [&](const std::vector<std::string>& options,
                           const std::map<std::string, std::string>& environment = {}) {
    std::vector<std::string> arguments = options;
    arguments.insert(arguments.end(), {"phone", "--json"});
    const Json phone = Json::parse(run(arguments, environment).output);
    return phone["phone"].get<std::string>() + " " + phone["os"].get<std::string>() +
           (phone["zoomed"] ? " zoomed" : "");
  };
  EXPECT_EQ(current({}), "iPhone 15 Pro 18.0");
  ASSERT_EQ(run({"phone", "iphone 12 mini", "--os", "17.2.1", "--zoomed"}).status, 0);
  EXPECT_EQ(current({}), "iPhone 12 Mini 17.2.1 zoomed");
  const std::map<std::string, std::string> environment = {
      {"VITRELLE_PHONE", "iPhone 14"}, {"VITRELLE_OS", "18"}, {"VITRELLE_ZOOMED", "false"}};
  EXPECT_EQ(current({}, environment), "iPhone 14 18.0");
  EXPECT_EQ(current({}), "iPhone 12 Mini 17.2.1 zoomed") << "the environment is not saved";
  EXPECT_EQ(current({"--phone", "iPhone16,2"}, environment), "iPhone 15 Pro Max 18.0");
  EXPECT_EQ(run({"phone", "No Phone"}).status, 2);
}

TEST_F(CommandTest, phone_keepsTheAppearanceForAllPrograms) {
  const auto appearance = [&](const std::map<std::string, std::string>& environment = {}) {
    return Json::parse(run({"phone", "--json"}, environment).output)["appearance"];
  };
  EXPECT_EQ(appearance(), "desktop");
  ASSERT_EQ(run({"phone", "--appearance", "dark"}).status, 0);
  EXPECT_EQ(appearance(), "dark");
  EXPECT_EQ(run({"phone", "iPhone 14"}).output,
            "iPhone 14 (iPhone14,7), OS 18.0, standard display, always dark\n");
  EXPECT_EQ(appearance({{"VITRELLE_APPEARANCE", "light"}}), "light");
  EXPECT_EQ(appearance(), "dark");
  EXPECT_EQ(run({"phone", "--appearance", "grey"}).status, 2);
  EXPECT_EQ(appearance(), "dark");
  ASSERT_EQ(run({"phone", "--appearance", "desktop"}).status, 0);
  EXPECT_EQ(appearance(), "desktop");
}

TEST_F(CommandTest, badVariable_isBlamedByItsName) {
  for (const char* name :
       {"VITRELLE_PHONE", "VITRELLE_OS", "VITRELLE_ZOOMED", "VITRELLE_APPEARANCE"}) {
    const Outcome outcome = run({"phones"}, {{name, "perhaps"}});
    EXPECT_EQ(outcome.status, 2) << name;
    EXPECT_TRUE(outcome.complaints.starts_with(std::string("vitrelle: ") + name + ": "))
        << outcome.complaints;
  }
}

TEST_F(CommandTest, garbledPhoneFile_standsForThePhoneOfToday) {
  ASSERT_EQ(run({"phone", "iPhone 14", "--os", "17.2", "--zoomed"}).status, 0);
  for (const char* text : {"", "identifier=\nos=seventeen\nzoomed=2", "\0\xFF\n=\n",
                           "identifier=x86_64", "identifier=arm64"}) {
    std::ofstream(home() + "/phone") << text;
    EXPECT_EQ(run({"phone"}).output, "iPhone 15 Pro (iPhone16,1), OS 18.0, standard display\n")
        << text;
  }
}

TEST_F(CommandTest, kernelOfAnotherName_findsThePhone) {
  const std::string screenshot = writePicture("a.png", test::positionImage(1179, 2556));
  const int before = personality(PER_LINUX32); // as setarch does; the program inherits it
  const Outcome outcome = run({"cut", "--style", "0", "--light", screenshot});
  personality(static_cast<unsigned long>(before));
  EXPECT_EQ(outcome.status, 0) << outcome.complaints;
}

TEST_F(CommandTest, whatIsNoFileInTheHome_isSaidAndNotWaitedFor) {
  const std::string screenshot = writePicture("a.png", test::positionImage(1179, 2556));
  const auto expectRefused = [&](const std::string& name, const std::string& why) {
    const Outcome outcome = run({"cut", "--style", "0", "--light", screenshot});
    EXPECT_EQ(outcome.status, 1) << name;
    EXPECT_EQ(outcome.complaints, "vitrelle: " + home() + name + ": " + why + "\n");
    std::filesystem::remove_all(home() + name);
  };
  std::ofstream(home()) << "a file";
  expectRefused("", "it is no folder");
  std::filesystem::create_directory(home());
  for (const char* name : {"/phone", "/timelines", "/lock", "/app.lock"}) {
    ASSERT_EQ(mkfifo((home() + name).c_str(), 0600), 0);
    expectRefused(name, "it is no regular file");
    std::filesystem::create_directory(home() + name);
    expectRefused(name, "it is no regular file");
  }
  for (const char* name : {"/tmp", "/group.quillmeresoftware.vitrelle"}) {
    std::ofstream(home() + name) << "a file";
    expectRefused(name, "it is no folder");
  }
  EXPECT_EQ(run({"cut", "--style", "0", "--light", screenshot}).status, 0);
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(run({"palette", (folder / "pipe").string()}).status, 1);
}

TEST_F(CommandTest, longHome_takesPictures) {
  const std::string screenshot = writePicture("a.png", test::positionImage(1179, 2556));
  std::string deep = home();
  for (int i = 0; i < 15; ++i)
    deep += "/" + std::string(200, 'x');
  const Outcome outcome = run({"--home", deep, "cut", "--style", "0", "--light", screenshot});
  EXPECT_EQ(outcome.status, 0) << outcome.complaints;
  EXPECT_EQ(run({"--home", deep, "phone", "iPhone 14"}).status, 0);
  EXPECT_TRUE(run({"--home", deep, "phone"}).output.starts_with("iPhone 14 "));
  const Outcome tooLong = run({"--home", deep + deep, "phone", "iPhone 14"});
  EXPECT_EQ(tooLong.status, 1);
  EXPECT_TRUE(tooLong.complaints.ends_with(": File name too long\n")) << tooLong.complaints;
}

TEST_F(CommandTest, options_goBeforeOrAfterTheCommand) {
  const std::string other = (folder / "other").string();
  ASSERT_EQ(run({"--home", other, "defaults", "write", "selectedConfig", "-int", "4"}).status, 0);
  EXPECT_EQ(run({"defaults", "read", "selectedConfig", "--home", other}).output, "4\n");
  EXPECT_EQ(run({"defaults", "read", "selectedConfig"}).status, 1);
}

TEST_F(CommandTest, standard_namesTheOwnDefaultsWhereverItStands) {
  ASSERT_EQ(run({"--standard", "defaults", "write", "destination", "-string", "there"}).status, 0);
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"--standard", "defaults", "read", "destination"},
        {"defaults", "--standard", "read", "destination"},
        {"defaults", "read", "destination", "--standard"}}) {
    EXPECT_EQ(run(arguments).output, "there\n");
  }
  EXPECT_EQ(run({"defaults", "read", "destination"}).status, 1);
}

TEST_F(CommandTest, watchOfADamagedStore_isAFailure) {
  ASSERT_EQ(run({"defaults", "write", "selectedConfig", "-int", "1"}).status, 0);
  std::ofstream(home() + "/group.quillmeresoftware.vitrelle.sqlite") << std::string(8192, 'x');
  EXPECT_EQ(run({"defaults", "watch", "selectedConfig"}).status, 1);
  EXPECT_EQ(run({"defaults", "watch"}).status, 1);
}

TEST_F(CommandTest, lostOutputAndEmptyHome_areFailures) {
  const std::string program = VITRELLE_PROGRAM " phones --json > /dev/full 2> /dev/null";
  EXPECT_EQ(WEXITSTATUS(std::system(program.c_str())), 1);
  const Outcome outcome = run({"--home", "", "phone"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.complaints.find("--home"), std::string::npos) << outcome.complaints;
}

TEST_F(CommandTest, defaultsAndRecords_shareTheStore) {
  const std::string json =
      R"([{"id":0,"textConfigTag":0,"textWidgetText":"Hi","textWidgetFont":"","textWidgetSize":18,)"
      R"("textWidgetShadow":true,"textWidgetTextColour":"FFFFFF","textLinkedConfig":13}])";
  EXPECT_EQ(Json::parse(run({"records", "text", "--json"}).output), Json::array());
  ASSERT_EQ(run({"defaults", "write", "savedTextWidgetData", "-data", hexadecimal(json)}).status,
            0);
  EXPECT_EQ(Json::parse(run({"records", "text", "--json"}).output), Json::parse(json));
  ASSERT_EQ(run({"defaults", "delete", "savedTextWidgetData"}).status, 0);
  EXPECT_EQ(Json::parse(run({"records", "text", "--json"}).output), Json::array());
  EXPECT_EQ(run({"records", "poetry"}).status, 2);
}

TEST_F(CommandTest, foreignText_isShownInOneLineAndToldExactly) {
  const std::string key = "k\ney\u009b";
  const std::string value = "v\x1b[2J\nw\u202e\"";
  ASSERT_EQ(run({"defaults", "write", key, "-string", value}).status, 0);
  EXPECT_EQ(run({"defaults", "read"}).output, "k\\ney\\u009b = \"v\\x1b[2J\\nw\\u202e\\\"\"\n");
  EXPECT_EQ(run({"defaults", "read", key}).output, value + "\n") << "scripts get it whole";
  EXPECT_EQ(Json::parse(run({"defaults", "read", "--json"}).output)[key]["value"], value);

  constexpr const char* controls =
      R"([{"id":0,"textConfigTag":0,"textWidgetText":"a)"
      "\u009b"
      R"(b","textWidgetFont":"","textWidgetSize":18,"textWidgetShadow":true,)"
      R"("textWidgetTextColour":"FFFFFF","textLinkedConfig":13}])";
  ASSERT_EQ(
      run({"defaults", "write", "savedTextWidgetData", "-data", hexadecimal(controls)}).status, 0);
  EXPECT_NE(run({"records", "text"}).output.find("textWidgetText = \"a\\u009bb\"\n"),
            std::string::npos);

  EXPECT_EQ(run({"palette", "no\x1b[31m\n.png"}).complaints,
            "vitrelle: no\\x1b[31m\\n.png: No such file or directory\n");
  EXPECT_EQ(run({"sl\x1b[31m\nice"}).complaints,
            "vitrelle: there is no 'sl\\x1b[31m\\nice' (see 'vitrelle --help')\n");
  const std::string words =
      run({"face", "text", "--set", "textWidgetText=a\x1b[1mb", "--list"}).output;
  EXPECT_NE(words.find("text \"a\\x1b[1mb\""), std::string::npos) << words;
}

TEST_F(CommandTest, defaultsWrite_takesValuesOnlyAsTheyAreWritten) {
  const std::vector<std::pair<const char*, const char*>> good = {
      {"-int", "-5"},
      {"-float", "1e3"},
      {"-date", "2026-01-31"},
      {"-date", "2026-01-31T12:30:00.5Z"}};
  for (const auto& [type, text] : good)
    EXPECT_EQ(run({"defaults", "write", "key", type, text}).status, 0) << type << ' ' << text;
  EXPECT_EQ(run({"defaults", "read", "key"}).output, "2026-01-31T12:30:00.500Z\n");
  const std::vector<std::pair<const char*, const char*>> bad = {{"-int", ""},
                                                                {"-int", " 1"},
                                                                {"-int", "0x1"},
                                                                {"-int", "9223372036854775808"},
                                                                {"-float", "1,5"},
                                                                {"-bool", "TRUE "},
                                                                {"-data", "0"},
                                                                {"-data", "0x"},
                                                                {"-date", " 2026-01-31"},
                                                                {"-date", "2026-1-31"},
                                                                {"-date", "2026-02-30"},
                                                                {"-date", "+026-01-31"},
                                                                {"-date", "2026-01-31T12:30:00"},
                                                                {"-date", "2026-01-31T24:00:00Z"}};
  for (const auto& [type, text] : bad)
    EXPECT_EQ(run({"defaults", "write", "key", type, text}).status, 2) << type << ' ' << text;
}

TEST_F(CommandTest, palette_listsTheColoursOfAPicture) {
  const std::string path = writePicture("a.png", test::positionImage(64, 64));
  const Outcome lines = run({"palette", path, "--colours", "2"});
  EXPECT_EQ(lines.status, 0);
  EXPECT_EQ(lines.output.size(), 3U * 7) << "two are asked for, three come: " << lines.output;
  EXPECT_EQ(Json::parse(run({"palette", path, "--json"}).output)["colours"].size(), 5U);
  EXPECT_EQ(run({"palette", path, "--colours", "1"}).status, 2);
  EXPECT_EQ(run({"palette", (folder / "none.png").string()}).complaints,
            "vitrelle: " + (folder / "none.png").string() + ": No such file or directory\n");
}

TEST_F(CommandTest, everyCommand_helps) {
  // The commands as the help of the whole lists them: a line each, behind a heading of their own.
  std::istringstream help(run({"--help"}).output);
  std::string line;
  while (std::getline(help, line) && line.find("ubcommands:") == std::string::npos) {
  }
  int commands = 0;
  while (std::getline(help, line) && line.starts_with("  ")) {
    const std::string command = line.substr(2, line.find(' ', 2) - 2);
    if (command.empty()) continue; // a description's second line
    const Outcome outcome = run({command, "--help"});
    EXPECT_EQ(outcome.status, 0) << command;
    EXPECT_NE(outcome.output.find(command), std::string::npos) << command;
    ++commands;
  }
  EXPECT_GE(commands, 10);
}

} // namespace
} // namespace vitrelle
