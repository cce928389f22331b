#include "host/desktop/EndSignals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

constexpr int signals[] = {SIGTERM, SIGINT, SIGHUP};

/// The end of the pipe that the handler writes to: a handler is given nothing but the signal.
std::atomic<int> writer = -1;

void handle(int) {
  const int before = errno;
  const char byte = 0;
  // A full pipe tells as much as one byte more.
  [[maybe_unused]] const ssize_t written = write(writer, &byte, 1);
  errno = before;
}

void setHandler(int signal, void (*handler)(int)) {
  struct sigaction action {};
  sigaction(signal, nullptr, &action);
  if (action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = handler;
  action.sa_flags = handler == SIG_DFL ? 0 : SA_RESTART | static_cast<int>(SA_RESETHAND);
  sigaction(signal, &action, nullptr);
}

} // namespace

EndSignals::EndSignals(const EventLoop& loop, std::function<void()> end) {
  int ends[2] = {-1, -1};
  if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return; // signals then end the process as they do
  reader_ = ends[0];
  writer = ends[1];
  readable_ = loop.whenReadable(reader_, [reader = reader_, end = std::move(end)] {
    char byte = 0;
    while (read(reader, &byte, 1) == 1) {
    }
    end();
  });
  for (const int signal : signals)
    setHandler(signal, handle);
}

EndSignals::~EndSignals() {
  if (reader_ < 0) return;
  for (const int signal : signals)
    setHandler(signal, SIG_DFL);
  readable_.cancel();
  close(writer.exchange(-1));
  close(reader_);
}

} // namespace vitrelle::host
