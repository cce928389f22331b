#include "tests/cli/Program.h"

#include "host/imaging/ImageFile.h"
#include "tests/host/imaging/LibpngPeer.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

namespace vitrelle::test {

namespace fs = std::filesystem;

namespace {

pid_t spawn(const std::vector<std::string>& arguments,
            const std::map<std::string, std::string>& environment, const std::string& output,
            const std::string& complaints) {
  std::vector<std::string> words = {VITRELLE_PROGRAM};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<std::string> variables = {std::string("PATH=") + std::getenv("PATH")};
  for (const auto& [name, value] : environment)
    variables.push_back(name + "=" + value);
  const auto pointers = [](std::vector<std::string>& strings) {
    std::vector<char*> list;
    for (std::string& text : strings)
      list.push_back(text.data());
    list.push_back(nullptr);
    return list;
  };
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  constexpr int create = O_WRONLY | O_CREAT | O_TRUNC;
  posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), create, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, complaints.c_str(), create, 0600);
  pid_t child = -1;
  posix_spawn(&child, VITRELLE_PROGRAM, &actions, nullptr, pointers(words).data(),
              pointers(variables).data());
  posix_spawn_file_actions_destroy(&actions);
  return child;
}

std::string contents(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

} // namespace

ProgramTest::ProgramTest() {
  std::string pattern = (fs::temp_directory_path() / "program testXXXXXX").string();
  folder = mkdtemp(pattern.data());
}

ProgramTest::~ProgramTest() {
  fs::remove_all(folder);
}

Outcome ProgramTest::run(const std::vector<std::string>& arguments,
                         const std::map<std::string, std::string>& environment) const {
  std::map<std::string, std::string> variables = {{"VITRELLE_HOME", home()}};
  variables.insert(environment.begin(), environment.end());
  const std::string output = (folder / "stdout").string();
  const std::string complaints = (folder / "stderr").string();
  const pid_t child = spawn(arguments, variables, output, complaints);
  int status = 0;
  waitpid(child, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contents(output), contents(complaints)};
}

pid_t ProgramTest::start(const std::vector<std::string>& arguments) const {
  return spawn(arguments, {{"VITRELLE_HOME", home()}}, "/dev/null", "/dev/null");
}

fs::path ProgramTest::groupFolder() const {
  return folder / "home" / "group.quillmeresoftware.vitrelle";
}

std::string ProgramTest::writePicture(const std::string& name, const Image& picture) const {
  const std::string path = (folder / name).string();
  const auto images = host::makeImages(host::HomeFolder(folder.string()));
  const PngFile file{path, picture};
  EXPECT_TRUE(images.writePngFiles({&file, 1}).front());
  return path;
}

Bitmap ProgramTest::readPicture(const fs::path& path) const {
  const std::string file = contents(path.string());
  PixelSize size;
  Data pixels =
      readWithLibpng({reinterpret_cast<const std::uint8_t*>(file.data()), file.size()}, size);
  return bitmapOf(size, std::move(pixels));
}

bool isPart(const Bitmap& part, const Image& whole, const PixelRect& rectangle) {
  const Bitmap large = whole.bitmap().value();
  if (part.size.width != rectangle.width || part.size.height != rectangle.height ||
      rectangle.x + rectangle.width > large.size.width ||
      rectangle.y + rectangle.height > large.size.height) {
    return false;
  }
  for (std::int32_t row = 0; row < part.size.height; ++row) {
    const auto* expected =
        large.row(static_cast<std::int32_t>(rectangle.y) + row) + 4 * rectangle.x;
    const auto* actual = part.row(row);
    if (!std::equal(actual, actual + 4 * part.size.width, expected)) return false;
  }
  return true;
}

} // namespace vitrelle::test
