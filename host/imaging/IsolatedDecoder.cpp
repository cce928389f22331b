#include "host/imaging/IsolatedDecoder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

// Enough for the largest picture that is taken in.
constexpr rlim_t mostMemoryBytes = rlim_t{1} << 30;
constexpr rlim_t mostSecondsOfProcessor = 30;
constexpr int mostMillisecondsToWait = 40'000;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool memoryCanBeLimited = false;
#elif defined(__has_feature)
constexpr bool memoryCanBeLimited = !__has_feature(address_sanitizer);
#else
constexpr bool memoryCanBeLimited = true;
#endif

/// What the child leaves in the shared file, before the ICC profile and the rows of RGBA pixels.
struct Message {
  bool ok;
  bool hasPixels;
  bool hasCicp;
  std::array<std::uint8_t, 4> cicp;
  PixelSize size;
  std::size_t iccBytes;
  std::array<char, 200> why;
};

std::size_t pixelBytes(const Message& message) {
  if (!message.hasPixels) return 0;
  return static_cast<std::size_t>(message.size.width) * 4 *
         static_cast<std::size_t>(message.size.height);
}

std::size_t totalBytes(const Message& message) {
  return sizeof(Message) + message.iccBytes + pixelBytes(message);
}

class Descriptor final {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return number_; }

 private:
  int number_;
};

/// A mapping of a file's bytes.
std::shared_ptr<std::uint8_t> mapped(int file, std::size_t size, int protection) {
  void* memory = mmap(nullptr, size, protection, MAP_SHARED, file, 0);
  if (memory == MAP_FAILED) return nullptr;
  return {static_cast<std::uint8_t*>(memory), [size](std::uint8_t* start) { munmap(start, size); }};
}

void limitResources() {
  const auto limit = [](__rlimit_resource resource, rlim_t most) {
    const rlimit value{.rlim_cur = most, .rlim_max = most};
    setrlimit(resource, &value);
  };
  if (memoryCanBeLimited) limit(RLIMIT_AS, mostMemoryBytes);
  limit(RLIMIT_CPU, mostSecondsOfProcessor);
  limit(RLIMIT_CORE, 0);
  // The libraries' own complaints.
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
}

Message describe(const Result<DecodedPicture>& picture) {
  Message message{};
  message.ok = picture.ok();
  if (!picture) {
    std::snprintf(message.why.data(), message.why.size(), "%s", picture.failure().why.c_str());
    return message;
  }
  message.size = picture->bitmap.size;
  message.hasPixels = picture->bitmap.pixels != nullptr;
  message.iccBytes = picture->profile.icc.size();
  message.hasCicp = picture->profile.cicp.has_value();
  message.cicp = picture->profile.cicp.value_or(message.cicp);
  return message;
}

bool send(int file, const Result<DecodedPicture>& picture) {
  const Message message = describe(picture);
  if (ftruncate(file, static_cast<off_t>(totalBytes(message))) != 0) return false;
  const auto memory = mapped(file, totalBytes(message), PROT_READ | PROT_WRITE);
  if (!memory) return false;
  std::uint8_t* out = memory.get();
  std::memcpy(out, &message, sizeof message);
  out += sizeof message;
  if (!message.ok) return true;
  out = std::ranges::copy(picture->profile.icc, out).out;
  const std::size_t bytesPerRow = static_cast<std::size_t>(message.size.width) * 4;
  for (std::int32_t y = 0; message.hasPixels && y < message.size.height; ++y) {
    std::memcpy(out, picture->bitmap.row(y), bytesPerRow);
    out += bytesPerRow;
  }
  return true;
}

DecodedPicture receivePicture(const Message& message, const std::shared_ptr<std::uint8_t>& memory) {
  const std::uint8_t* icc = memory.get() + sizeof message;
  DecodedPicture picture;
  picture.profile.icc.assign(icc, icc + message.iccBytes);
  if (message.hasCicp) picture.profile.cicp = message.cicp;
  picture.bitmap = {.size = message.size,
                    .bytesPerRow = static_cast<std::size_t>(message.size.width) * 4,
                    .pixels = message.hasPixels ? icc + message.iccBytes : nullptr,
                    .opaque = false,
                    .owner = memory};
  return picture;
}

/// The child's exit closes its end of the pipe. True when it came to its end by itself and well.
bool waitFor(pid_t child, int pipeEnd) {
  pollfd ended{.fd = pipeEnd, .events = POLLIN, .revents = 0};
  int ready = 0;
  do {
    ready = poll(&ended, 1, mostMillisecondsToWait);
  } while (ready < 0 && errno == EINTR);
  if (ready <= 0) kill(child, SIGKILL);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

Result<DecodedPicture> decodeIsolated(const std::string& format,
                                      const std::function<Result<DecodedPicture>()>& decode) {
  const Descriptor file(memfd_create("picture", MFD_CLOEXEC));
  int ends[2] = {-1, -1};
  if (file.get() < 0 || pipe2(ends, O_CLOEXEC) != 0) return Failure{format, std::strerror(errno)};
  const Descriptor readEnd(ends[0]);
  pid_t child = -1;
  {
    const Descriptor writeEnd(ends[1]);
    child = fork();
    if (child < 0) return Failure{format, std::strerror(errno)};
    if (child == 0) {
      limitResources();
      _exit(send(file.get(), decode()) ? 0 : 1);
    }
  }
  const Failure broken{format, "the picture is damaged or needs too much memory"};
  if (!waitFor(child, readEnd.get())) return broken;

  struct stat status {};
  Message message{};
  if (fstat(file.get(), &status) != 0 ||
      pread(file.get(), &message, sizeof message, 0) != static_cast<ssize_t>(sizeof message) ||
      static_cast<std::size_t>(status.st_size) != totalBytes(message)) {
    return broken;
  }
  if (!message.ok) return Failure{format, message.why.data()};
  const auto memory = mapped(file.get(), totalBytes(message), PROT_READ);
  if (!memory) return Failure{format, "not enough memory"};
  return receivePicture(message, memory);
}

} // namespace vitrelle::host
