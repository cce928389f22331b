#include "host/desktop/FileWatch.h"

#include <array>
#include <filesystem>
#include <memory>
#include <string_view>
#include <utility>

#include <sys/inotify.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

/// Reads all that the kernel has to tell; whether something of it is about a file of this name.
bool drain(int descriptor, std::string_view name) {
  alignas(inotify_event) std::array<char, 4096> events;
  bool told = false;
  for (ssize_t size = 0; (size = read(descriptor, events.data(), events.size())) > 0;) {
    for (const char* at = events.data(); at < events.data() + size;) {
      const auto* event = reinterpret_cast<const inotify_event*>(at);
      told = told || (event->len != 0 && name == event->name) || (event->mask & IN_Q_OVERFLOW) != 0;
      at += sizeof(inotify_event) + event->len;
    }
  }
  return told;
}

} // namespace

Subscription watchFile(const std::string& path, const EventLoop& loop,
                       std::function<void()> onWritten) {
  const int descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  if (descriptor < 0) return {};
  const std::filesystem::path file(path);
  const std::string folder = file.parent_path(); // since the file need not be there yet
  if (inotify_add_watch(descriptor, folder.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO) < 0) {
    close(descriptor);
    return {};
  }
  const std::string name = file.filename();
  auto readable = std::make_shared<Subscription>(
      loop.whenReadable(descriptor, [descriptor, name, onWritten = std::move(onWritten)] {
        if (drain(descriptor, name)) onWritten();
      }));
  return Subscription([descriptor, readable] {
    readable->cancel();
    close(descriptor);
  });
}

} // namespace vitrelle::host
