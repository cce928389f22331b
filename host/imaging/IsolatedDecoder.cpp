#include "host/imaging/IsolatedDecoder.h"

#include "host/files/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

using Clock = std::chrono::steady_clock;

/// Takes the number of a standard stream, which is free in a program that was started without it,
/// to a higher one: the child's own streams go there.
Descriptor beyondStreams(int number) {
  Descriptor file(number);
  if (number < 0 || number > STDERR_FILENO) return file;
  return Descriptor(fcntl(number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

/// A process that is gone at the end, whatever it does.
class Child final {
 public:
  explicit Child(pid_t id) : id_(id) {}
  ~Child() { end(); }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  /// Kills it if it still runs. Gives its status as `waitpid` does.
  int end() {
    if (id_ < 0) return status_;
    kill(id_, SIGKILL);
    while (waitpid(id_, &status_, 0) < 0 && errno == EINTR) {
    }
    id_ = -1;
    return status_;
  }

 private:
  pid_t id_;
  int status_ = 0;
};

/// A file in memory that holds the bytes and that nobody can change any more.
std::optional<Descriptor> sealedFile(std::span<const std::uint8_t> bytes) {
  Descriptor file = beyondStreams(memfd_create("picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
  if (!file) return std::nullopt;
  for (std::size_t done = 0; done < bytes.size();) { // the child reads from where this leaves it
    const ssize_t count =
        pwrite(file.get(), bytes.data() + done, bytes.size() - done, static_cast<off_t>(done));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    done += static_cast<std::size_t>(count);
  }
  constexpr int everything = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;
  if (fcntl(file.get(), F_ADD_SEALS, everything) != 0) return std::nullopt;
  return file;
}

/// Both ends of a pipe, of which no other child inherits either.
struct Pipe {
  Descriptor reading;
  Descriptor writing;
};

std::optional<Pipe> makePipe() {
  int ends[2] = {-1, -1};
  if (pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
  Pipe pipe{beyondStreams(ends[0]), beyondStreams(ends[1])};
  if (!pipe.reading || !pipe.writing) return std::nullopt;
  constexpr int roomBytes = 1 << 20; // fewer turns for a picture; not granted to everyone
  fcntl(pipe.writing.get(), F_SETPIPE_SZ, roomBytes);
  return pipe;
}

/// What the new process begins with: the three standard streams, the libraries' complaints going
/// nowhere, and signals as in any new program.
class SpawnSettings final {
 public:
  SpawnSettings(int input, int output) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
    posix_spawnattr_init(&attributes_);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }
  ~SpawnSettings() {
    posix_spawnattr_destroy(&attributes_);
    posix_spawn_file_actions_destroy(&actions_);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  /// The error, or 0.
  int spawn(const IsolatedDecoder& decoder, Wanted wanted, pid_t& id) const {
    std::string program = decoder.program;
    std::string argument = wanted == Wanted::size ? "size" : "picture";
    char* const arguments[] = {program.data(), argument.data(), nullptr};
    return posix_spawn(&id, program.c_str(), &actions_, &attributes_, arguments, environ);
  }

 private:
  posix_spawn_file_actions_t actions_;
  posix_spawnattr_t attributes_;
};

/// What comes out of a pipe until its end, or until it is too late.
class TimedReader final {
 public:
  TimedReader(int pipe, Clock::time_point deadline) : pipe_(pipe), deadline_(deadline) {}

  std::size_t read(std::span<std::uint8_t> out) {
    std::size_t done = 0;
    while (done < out.size() && waitForMore()) {
      const ssize_t count = ::read(pipe_, out.data() + done, out.size() - done);
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) break;
      done += static_cast<std::size_t>(count);
    }
    return done;
  }
  /// Whether more was waited for until the deadline.
  bool isTooLate() const { return isTooLate_; }

 private:
  bool waitForMore() {
    while (true) {
      const auto left =
          std::chrono::ceil<std::chrono::milliseconds>(deadline_ - Clock::now()).count();
      isTooLate_ = left <= 0;
      if (isTooLate_) return false;
      pollfd pipe{.fd = pipe_, .events = POLLIN, .revents = 0};
      const int ready = poll(&pipe, 1, static_cast<int>(std::min<std::int64_t>(left, 60'000)));
      if (ready > 0) return true;
      if (ready < 0 && errno != EINTR) return false;
    }
  }

  int pipe_;
  Clock::time_point deadline_;
  bool isTooLate_ = false;
};

} // namespace

Result<DecodedPicture> decodeIsolated(const IsolatedDecoder& decoder, Wanted wanted,
                                      std::span<const std::uint8_t> bytes) {
  const Clock::time_point deadline = Clock::now() + decoder.patience;
  const std::optional<Descriptor> input = sealedFile(bytes);
  if (!input) return Failure{decoder.format, std::strerror(errno)};
  std::optional<Pipe> pipe = makePipe();
  if (!pipe) return Failure{decoder.format, std::strerror(errno)};

  pid_t id = -1;
  const int error = SpawnSettings(input->get(), pipe->writing.get()).spawn(decoder, wanted, id);
  const auto notStarted = [&](const char* why) {
    return Failure{decoder.format, decoder.program + " can't be started (" + why + ")"};
  };
  if (error != 0) return notStarted(std::strerror(error));
  Child child(id);
  pipe->writing = Descriptor(); // the child's copy is then the last, and its end that of the pipe

  TimedReader reader(pipe->reading.get(), deadline);
  auto answer = readAnswer(wanted, decoder.format,
                           [&](std::span<std::uint8_t> out) { return reader.read(out); });
  if (reader.isTooLate()) return Failure{decoder.format, "decoding the picture takes too long"};
  if (answer) return *std::move(answer);
  constexpr int libraryMissing = 127; // by the system's loader of programs
  const int status = child.end();
  if (WIFEXITED(status) && WEXITSTATUS(status) == libraryMissing) {
    return notStarted("a library is missing");
  }
  return Failure{decoder.format, "the picture is damaged or needs too much memory"};
}

} // namespace vitrelle::host
