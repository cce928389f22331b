// A folder that looks like the kernel's of batteries and chargers.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace vitrelle::test {

/// By the names of their files.
using Attributes = std::map<std::string, std::string>;

class FakeSupplies final {
 public:
  FakeSupplies() {
    std::string pattern = (std::filesystem::temp_directory_path() / "supplies-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
  }
  ~FakeSupplies() { std::filesystem::remove_all(folder_); }
  FakeSupplies(const FakeSupplies&) = delete;
  FakeSupplies& operator=(const FakeSupplies&) = delete;

  std::string path() const { return folder_; }
  void set(const std::string& supply, const Attributes& attributes) const {
    std::filesystem::create_directory(folder_ / supply);
    for (const auto& [name, value] : attributes)
      std::ofstream(folder_ / supply / name) << value << '\n';
  }

 private:
  std::filesystem::path folder_;
};

} // namespace vitrelle::test
