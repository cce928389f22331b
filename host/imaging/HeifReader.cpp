#include "host/imaging/HeifReader.h"

#include "host/imaging/IsolatedDecoder.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace vitrelle::host {

namespace {

namespace fs = std::filesystem;

/// The program lies beside this one when both are installed. In a build folder each has a folder of
/// its own; an installed program must not run what lies there.
IsolatedDecoder findDecoder() {
  constexpr const char* name = "vitrelle-decode-heic";
  const fs::path buildFolder = VITRELLE_BUILD_FOLDER;
  std::error_code ignored;
  const fs::path own = fs::read_symlink("/proc/self/exe", ignored);
  const fs::path beside = own.parent_path() / name;
  const bool isBuilt = std::ranges::mismatch(own, buildFolder).in2 == buildFolder.end();
  const fs::path program = isBuilt ? buildFolder / "host" / "imaging" / name : beside;
  return {.format = "HEIC", .program = program};
}

const IsolatedDecoder& decoder() {
  static const IsolatedDecoder found = findDecoder();
  return found;
}

} // namespace

bool isHeif(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t brandAt = 8;
  constexpr std::array<std::string_view, 8> brands = {"heic", "heix", "heim", "heis",
                                                      "mif1", "msf1", "hevc", "avif"};
  if (bytes.size() < brandAt + 4) return false;
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), brandAt + 4);
  return text.substr(4, 4) == "ftyp" && std::ranges::count(brands, text.substr(brandAt)) != 0;
}

Result<PixelSize> readHeifSize(std::span<const std::uint8_t> bytes) {
  const auto picture = decodeIsolated(decoder(), Wanted::size, bytes);
  if (!picture) return picture.failure();
  return picture->bitmap.size;
}

Result<DecodedPicture> decodeHeif(std::span<const std::uint8_t> bytes) {
  return decodeIsolated(decoder(), Wanted::picture, bytes);
}

} // namespace vitrelle::host
