// A home in a folder of the test's own, and what stands in files.
#pragma once

#include "core/platform/Data.h"
#include "host/files/HomeFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

namespace vitrelle::host {

class FilesTest : public testing::Test {
 protected:
  ~FilesTest() override { std::filesystem::remove_all(folder); }

  static std::filesystem::path makeTemporary() {
    namespace fs = std::filesystem;
    // In memory where that can be: a race that a disk slows down is never lost.
    const fs::path root = access("/dev/shm", W_OK) == 0 ? "/dev/shm" : fs::temp_directory_path();
    std::string pattern = (root / "files-XXXXXX").string();
    return mkdtemp(pattern.data());
  }
  static Data contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string inGroup(const std::string& name) const { return home.groupFolder() + "/" + name; }
  std::string outside(const std::string& name) const { return (folder / name).string(); }

  const std::filesystem::path folder = makeTemporary();
  const HomeFolder home{(folder / "home").string()};
  const Data bytes = Data(3000, 7);
};

} // namespace vitrelle::host
