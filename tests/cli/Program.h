// The built program as a user runs it, in a home of its own.
#pragma once

#include "core/platform/Image.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <sys/types.h>

namespace vitrelle::test {

struct Outcome {
  int status = -1; ///< of the exit; -1 after a signal
  std::string output;
  std::string complaints;
};

class ProgramTest : public testing::Test {
 protected:
  ProgramTest();
  ~ProgramTest() override;

  /// Runs to the end. Only the variables given are set beside PATH.
  Outcome run(const std::vector<std::string>& arguments,
              const std::map<std::string, std::string>& environment = {}) const;
  /// Starts it and goes on.
  pid_t start(const std::vector<std::string>& arguments) const;

  std::string home() const { return (folder / "home").string(); }
  std::filesystem::path groupFolder() const;
  /// Writes the picture as a PNG file in the test's folder; gives its path.
  std::string writePicture(const std::string& name, const Image& picture) const;
  /// Read by libpng, as other programs would.
  Bitmap readPicture(const std::filesystem::path& path) const;

  std::filesystem::path folder;
};

/// Whether `part` is this rectangle of `whole`, pixel for pixel.
bool isPart(const Bitmap& part, const Image& whole, const PixelRect& rectangle);

} // namespace vitrelle::test
