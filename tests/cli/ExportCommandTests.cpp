#include "tests/cli/Program.h"
#include "tests/support/Fakes.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>
#include <set>

#include <sys/wait.h>
#include <unistd.h>

namespace vitrelle {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::Outcome;

class ExportCommandTest : public test::ProgramTest {
 protected:
  ExportCommandTest() {
    const std::string picture = writePicture("screen.png", test::positionImage(1179, 2556));
    EXPECT_EQ(run({"cut", "--style", "2", "--light", picture, "--dark", picture}).status, 0);
  }
  Outcome exported(std::vector<std::string> more,
                   const std::map<std::string, std::string>& environment = {}) const {
    more.insert(more.begin(), {"export", "--style", "2", "--into", into()});
    return run(more, environment);
  }
  std::string into() const { return (folder / "slices" / "out").string(); }
  std::set<std::string> names() const {
    std::set<std::string> found;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(into(), none))
      found.insert(entry.path().filename().string());
    return found;
  }
  static std::string bytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
};

TEST_F(ExportCommandTest, slices_areCopiedByteForByte) {
  const Outcome outcome = exported({"--json"});
  ASSERT_EQ(outcome.status, 0) << outcome.complaints;
  EXPECT_EQ(outcome.complaints, "") << "nobody watches the progress";
  EXPECT_EQ(names().size(), 22U) << "the screenshots are no slices";
  const Json document = Json::parse(outcome.output);
  EXPECT_EQ(document["style"], 2);
  for (const Json& file : document["files"]) {
    const std::string name = file["name"];
    const std::string copy = bytesOf(fs::path(into()) / name);
    EXPECT_EQ(copy.size(), file["bytes"]) << name;
    EXPECT_TRUE(copy == bytesOf(groupFolder() / name)) << name;
  }
  EXPECT_EQ(document["files"][0],
            (Json{{"name", "2topLeftSmall.png"},
                  {"width", 474},
                  {"height", 474},
                  {"bytes", fs::file_size(groupFolder() / "2topLeftSmall.png")}}));
}

TEST_F(ExportCommandTest, appearanceAndSize_chooseAmongThem) {
  const struct {
    std::vector<std::string> words;
    std::set<std::string> names;
    std::map<std::string, std::string> environment = {};
  } cases[] = {
      {{"--appearance", "dark", "--size", "large"}, {"2topLargeDark.png", "2bottomLargeDark.png"}},
      {{"--size", "large"},
       {"2topLarge.png", "2bottomLarge.png", "2topLargeDark.png", "2bottomLargeDark.png"}},
      {{"--appearance", "both", "--size", "large"},
       {"2topLarge.png", "2bottomLarge.png", "2topLargeDark.png", "2bottomLargeDark.png"},
       {{"VITRELLE_APPEARANCE", "light"}}},
      {{"--size", "medium"},
       {"2topMedium.png", "2midMedium.png", "2bottomMedium.png"},
       {{"VITRELLE_APPEARANCE", "light"}}}};
  for (const auto& one : cases) {
    fs::remove_all(into());
    EXPECT_EQ(exported(one.words, one.environment).status, 0);
    EXPECT_EQ(names(), one.names) << testing::PrintToString(one.words);
  }
  fs::remove_all(into());
  EXPECT_EQ(
      run({"--appearance", "light", "export", "--style", "2", "--size", "large", "--into", into()})
          .status,
      0);
  EXPECT_EQ(names(), (std::set<std::string>{"2topLarge.png", "2bottomLarge.png"}));
}

TEST_F(ExportCommandTest, filesThatAreThere_areReplacedOnlyByForce) {
  fs::create_directories(into());
  const fs::path mine = fs::path(into()) / "2bottomLargeDark.png"; // the last of all
  std::ofstream(mine) << "mine";
  const Outcome refused = exported({});
  EXPECT_EQ(refused.status, 1);
  EXPECT_NE(refused.complaints.find("2bottomLargeDark.png; nothing"), std::string::npos)
      << refused.complaints;
  EXPECT_EQ(names().size(), 1U);
  EXPECT_EQ(bytesOf(mine), "mine");
  EXPECT_EQ(exported({"--force"}).status, 0);
  EXPECT_EQ(names().size(), 22U);
  EXPECT_TRUE(bytesOf(mine) == bytesOf(groupFolder() / mine.filename()));
}

TEST_F(ExportCommandTest, whatCannotBeDone_isOneLineAndWritesNothing) {
  const auto expectRefused = [&](const Outcome& outcome, const std::string& words) {
    EXPECT_EQ(outcome.status, 1) << words;
    EXPECT_EQ(outcome.output, "") << words;
    EXPECT_NE(outcome.complaints.find(words), std::string::npos) << outcome.complaints;
    EXPECT_EQ(std::ranges::count(outcome.complaints, '\n'), 1) << outcome.complaints;
    EXPECT_TRUE(names().empty()) << words;
  };
  expectRefused(run({"export", "--style", "7", "--into", into()}),
                "style 7: it has no such slices");
  const std::string file = (folder / "file").string();
  std::ofstream(file) << "no folder";
  expectRefused(run({"export", "--style", "2", "--into", file}), "Not a directory");
  if (geteuid() != 0) {
    const fs::path closed = folder / "closed";
    fs::create_directory(closed);
    fs::permissions(closed, fs::perms(0500));
    expectRefused(run({"export", "--style", "2", "--into", closed.string()}), "Permission denied");
  }
  fs::remove(groupFolder() / "2midMedium.png");
  expectRefused(exported({}), "style 2: slices are missing: 2midMedium.png;");
  fs::remove(groupFolder() / "2topLarge.png");
  expectRefused(exported({}), "2midMedium.png and 1 more;");
  std::ofstream(groupFolder() / "2topLarge.png") << "damaged";
  expectRefused(exported({"--size", "large"}), "2topLarge.png: not a PNG, JPEG or HEIC picture");
}

TEST_F(ExportCommandTest, interrupted_leavesWholeFilesAndNothingElse) {
  for (const int signal : {SIGINT, SIGTERM}) {
    for (int milliseconds = 2; milliseconds <= 42; milliseconds += 8) {
      fs::remove_all(into());
      const pid_t child = start({"export", "--style", "2", "--into", into()});
      usleep(static_cast<useconds_t>(milliseconds) * 1000);
      kill(child, signal);
      waitpid(child, nullptr, 0);
      for (const std::string& name : names()) {
        ASSERT_TRUE(fs::exists(groupFolder() / name)) << name;
        EXPECT_TRUE(bytesOf(fs::path(into()) / name) == bytesOf(groupFolder() / name)) << name;
      }
    }
  }
}

TEST_F(ExportCommandTest, wrongUsage_isRefused) {
  for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
           {"--appearance", "both ways"}, {"--size", "huge"}, {"--style", "x"}, {"--into", ""}}) {
    const Outcome outcome = exported(words);
    EXPECT_EQ(outcome.status, 2) << testing::PrintToString(words);
    EXPECT_TRUE(names().empty());
  }
  EXPECT_EQ(run({"export", "--style", "2"}).status, 2);
}

} // namespace
} // namespace vitrelle
