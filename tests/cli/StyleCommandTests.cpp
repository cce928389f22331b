// The commands that make, change and choose styles, also several at once and over stores that are
// in trouble.
#include "tests/cli/Program.h"
#include "tests/support/Fakes.h"

#include <nlohmann/json.hpp>

#include <csignal>
#include <fstream>
#include <set>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vitrelle {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::Outcome;

class StyleCommandTest : public test::ProgramTest {
 protected:
  StyleCommandTest()
      : light(writePicture("light.png", test::positionImage(1179, 2556))),
        dark(writePicture("dark.png", test::positionImage(1179, 2556))) {}

  Outcome make() const { return run({"style", "new", "--light", light, "--dark", dark}); }
  std::string amount() const { return run({"defaults", "read", "amountOfConfigs"}).output; }
  std::string groupStore() const { return home() + "/group.quillmeresoftware.vitrelle.sqlite"; }

  const std::string light;
  const std::string dark;
};

TEST_F(StyleCommandTest, severalAtOnce_makeAStyleEach) {
  constexpr int atOnce = 6;
  std::vector<pid_t> children;
  for (int i = 0; i < atOnce; ++i)
    children.push_back(start({"style", "new", "--light", light, "--dark", dark}));
  for (const pid_t child : children) {
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  const Json styles = Json::parse(run({"style", "list", "--json"}).output);
  EXPECT_EQ(styles["amount"], atOnce);
  EXPECT_EQ(styles["styles"].size(), std::size_t{atOnce});
}

TEST_F(StyleCommandTest, interruptedMaking_usesUpNoNumberAndLeavesNothingPending) {
  for (const int signal : {SIGINT, SIGTERM, SIGKILL}) {
    for (int milliseconds = 5; milliseconds <= 125; milliseconds += 40) {
      const std::string before = amount();
      const pid_t child = start({"style", "new", "--light", light, "--dark", dark});
      usleep(static_cast<useconds_t>(milliseconds) * 1000);
      kill(child, signal);
      int status = 0;
      waitpid(child, &status, 0);
      const bool ended = WIFEXITED(status) && WEXITSTATUS(status) == 0;
      const Json styles = Json::parse(run({"style", "list", "--json"}).output);
      EXPECT_EQ(styles["amount"], styles["styles"].size()) << "a number without a style";
      if (ended) {
        ASSERT_EQ(run({"defaults", "write", "amountOfConfigs", "-int", "0"}).status, 0);
      }
      if (signal == SIGKILL) continue;
      if (fs::exists(home() + "/tmp")) {
        EXPECT_TRUE(fs::is_empty(home() + "/tmp"));
      }
    }
  }
}

TEST_F(StyleCommandTest, heldLock_isWaitedFor) {
  ASSERT_EQ(make().status, 0);
  const auto written = fs::last_write_time(groupFolder() / "0original.png");
  const int lock = open((home() + "/lock").c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(lock, LOCK_EX), 0);
  const pid_t child = start({"cut", "--style", "0", "--light", dark});
  usleep(500'000);
  EXPECT_EQ(waitpid(child, nullptr, WNOHANG), 0) << "it did not wait";
  EXPECT_EQ(fs::last_write_time(groupFolder() / "0original.png"), written);
  close(lock);
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_NE(fs::last_write_time(groupFolder() / "0original.png"), written);
}

TEST_F(StyleCommandTest, storeThatCannotBeRead_failsEveryCommandAndIsLeftAsItIs) {
  ASSERT_EQ(make().status, 0);
  const std::string garbage(8192, 'x');
  std::ofstream(groupStore()) << garbage;
  const std::vector<std::vector<std::string>> commands = {
      {"style", "list"},
      {"style", "list", "--json"},
      {"style", "new", "--light", light, "--dark", dark},
      {"style", "change", "0", "--light", dark},
      {"style", "select", "0"},
      {"shortcut", "options"},
      {"shortcut", "run", "Style 1"},
      {"records", "text"}};
  for (const auto& command : commands) {
    const Outcome outcome = run(command);
    EXPECT_EQ(outcome.status, 1) << command[0] << ' ' << command[1];
    EXPECT_NE(outcome.complaints.find("not a store"), std::string::npos)
        << command[1] << ": " << outcome.complaints;
  }
  EXPECT_EQ(run({"shortcut", "run", "Style 1"}).output, "Success\n") << "the action's own word";
  std::ifstream file(groupStore());
  EXPECT_EQ(std::string(std::istreambuf_iterator(file), {}), garbage);
}

TEST_F(StyleCommandTest, countThatCannotBeRaised_makesNoStyle) {
  ASSERT_EQ(make().status, 0);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(groupStore().c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  const Outcome outcome = make();
  sqlite3_close(other);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "");
  EXPECT_NE(outcome.complaints.find("no style was made"), std::string::npos) << outcome.complaints;
  EXPECT_EQ(amount(), "1\n");
  EXPECT_EQ(make().output, "1\n");
}

TEST_F(StyleCommandTest, slotsOutsideOfTheScreenshots_areSaidOfAStyleThatIsMade) {
  const std::string small = writePicture("small.png", test::positionImage(1179, 1300));
  const Outcome outcome = run({"style", "new", "--light", small, "--dark", small});
  EXPECT_EQ(outcome.status, 0) << "or a script would try again until twelve are full";
  EXPECT_EQ(outcome.output, "0\n");
  EXPECT_NE(outcome.complaints.find("too small"), std::string::npos) << outcome.complaints;
  EXPECT_EQ(amount(), "1\n");
}

TEST_F(StyleCommandTest, screenshotsOfAnotherPhone_areSaidToBeSo) {
  const std::string foreign = writePicture("foreign.png", test::positionImage(640, 1136));
  const auto complaints = [&](std::vector<std::string> options) {
    options.insert(options.end(), {"style", "new", "--light", foreign, "--dark", foreign});
    return run(options).complaints;
  };
  const std::string told = "--phone \"iPhone SE\" --os 17.0;";
  const std::string said = complaints({});
  EXPECT_NE(said.find(told), std::string::npos) << said;
  EXPECT_EQ(complaints({"--phone", "iPhone SE", "--os", "17.0"}), "") << "what was told is right";
}

TEST_F(StyleCommandTest, homeOfTheFirstGeneration_isLeftToTheApplication) {
  ASSERT_EQ(
      run({"defaults", "write", "last_used_app_version", "-string", "1.9", "--standard"}).status,
      0);
  EXPECT_EQ(make().status, 1) << "its start would begin to count anew";
  EXPECT_EQ(amount(), "");
}

TEST_F(StyleCommandTest, numberThatAKilledWindowLeft_isTakenBackFirst) {
  ASSERT_EQ(make().status, 0);
  // A window that was killed in the midst of style 1, which has no dark screenshot.
  ASSERT_EQ(run({"defaults", "write", "amountOfConfigs", "-int", "2"}).status, 0);
  ASSERT_EQ(run({"defaults", "write", "styleInTheMaking", "-int", "1", "--standard"}).status, 0);
  EXPECT_EQ(make().output, "1\n");
  EXPECT_EQ(amount(), "2\n");
}

TEST_F(StyleCommandTest, numbers_areTakenOnlyAsTheyAreWritten) {
  ASSERT_EQ(make().status, 0);
  for (const char* number :
       {"", " 0", "0x0", "00", "+0", "-0", "0 ", "0.0", "9223372036854775808"}) {
    EXPECT_EQ(run({"style", "change", number, "--light", dark}).status, 2) << number;
    EXPECT_EQ(run({"style", "select", number}).status, 2) << number;
    EXPECT_EQ(run({"cut", "--style", number, "--light", dark}).status, 2) << number;
  }
  EXPECT_EQ(run({"style", "select", "-1"}).status, 2);
  EXPECT_EQ(run({"style", "select", "0"}).status, 0);
}

TEST_F(StyleCommandTest, extremeCounts_areAnsweredInWords) {
  for (const char* extreme : {"-9223372036854775808", "-1", "9223372036854775807", "3000000"}) {
    ASSERT_EQ(run({"defaults", "write", "amountOfConfigs", "-int", extreme}).status, 0);
    EXPECT_EQ(make().status, 1) << extreme;
    EXPECT_EQ(run({"style", "list"}).status, 0) << extreme;
    EXPECT_LE(run({"shortcut", "options"}).output.size(), 2000U) << extreme;
    EXPECT_EQ(run({"style", "select", "9223372036854775807"}).status, 1) << extreme;
  }
  EXPECT_EQ(run({"shortcut", "run", "Style -9223372036854775808"}).output, "Success\n");
}

} // namespace
} // namespace vitrelle
