// vitrelle-decode-heic: decodes the file on its standard input and answers on its standard output,
// within bounds of memory and time. An `IsolatedDecoder` for the other programs.

#include "host/imaging/DecoderAnswer.h"
#include "host/imaging/HeifDecoder.h"

#include <cstdio>
#include <string_view>

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace vitrelle;

// Enough for the largest picture that is taken in.
constexpr rlim_t mostMemoryBytes = rlim_t{1} << 30;
constexpr rlim_t mostSecondsOfProcessor = 30;
/// Longer than anyone waits for the answer, should nobody be left to end this.
constexpr unsigned mostSeconds = 60;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool memoryCanBeLimited = false;
#elif defined(__has_feature)
constexpr bool memoryCanBeLimited = !__has_feature(address_sanitizer);
#else
constexpr bool memoryCanBeLimited = true;
#endif

void limitResources() {
  const auto limit = [](__rlimit_resource resource, rlim_t most) {
    const rlimit value{.rlim_cur = most, .rlim_max = most};
    setrlimit(resource, &value);
  };
  if (memoryCanBeLimited) limit(RLIMIT_AS, mostMemoryBytes);
  limit(RLIMIT_CPU, mostSecondsOfProcessor);
  limit(RLIMIT_CORE, 0);
  limit(RLIMIT_FSIZE, 0);
  alarm(mostSeconds);
}

/// The file on standard input; empty when there is none. It stays to the end of the program.
std::span<const std::uint8_t> input() {
  struct stat status {};
  if (fstat(STDIN_FILENO, &status) != 0 || status.st_size <= 0) return {};
  const auto size = static_cast<std::size_t>(status.st_size);
  const void* bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, STDIN_FILENO, 0);
  if (bytes == MAP_FAILED) return {};
  return {static_cast<const std::uint8_t*>(bytes), size};
}

bool putBytes(std::span<const std::uint8_t> bytes) {
  if (bytes.empty()) return true; // without an address, perhaps, which fwrite forbids
  return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
}

} // namespace

int main(int argc, char** argv) {
  const std::string_view wanted = argc == 2 ? argv[1] : "";
  if (wanted != "size" && wanted != "picture") {
    std::fputs("vitrelle-decode-heic: the other programs run this one, for HEIC files\n", stderr);
    return 2;
  }
  limitResources();
  const auto decode = wanted == "size" ? host::readSizeWithLibheif : host::decodeWithLibheif;
  constexpr std::size_t pipeBytes = std::size_t{1} << 20; // else whoever reads wakes for each row
  std::setvbuf(stdout, nullptr, _IOFBF, pipeBytes);
  const bool written = host::writeAnswer(decode(input()), putBytes) && std::fflush(stdout) == 0;
  return written ? 0 : 1;
}
