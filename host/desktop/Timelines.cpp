#include "host/desktop/Timelines.h"

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

void touch(const HomeFolder& home) {
  constexpr int flags = O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC;
  int file = open(home.timelinesFile().c_str(), flags, 0600);
  if (file < 0 && makeFolder(home.path())) file = open(home.timelinesFile().c_str(), flags, 0600);
  if (file < 0) return;
  futimens(file, nullptr);
  close(file);
}

/// Reads all that the kernel has to tell; whether a file of this name was closed after writing.
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

Subscription watch(const HomeFolder& home, const EventLoop& loop, std::function<void()> onReload) {
  const int descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  if (descriptor < 0) return {};
  // The folder, since the file need not be there yet.
  const bool watched = makeFolder(home.path()).ok() &&
                       inotify_add_watch(descriptor, home.path().c_str(), IN_CLOSE_WRITE) >= 0;
  if (!watched) {
    close(descriptor);
    return {};
  }
  const std::string name = std::filesystem::path(home.timelinesFile()).filename();
  auto readable = std::make_shared<Subscription>(
      loop.whenReadable(descriptor, [descriptor, name, onReload = std::move(onReload)] {
        if (drain(descriptor, name)) onReload();
      }));
  return Subscription([descriptor, readable] {
    readable->cancel();
    close(descriptor);
  });
}

} // namespace

WidgetCenter makeWidgetCenter(const HomeFolder& home, const EventLoop& loop) {
  return {.reloadAllTimelines = [home] { touch(home); },
          .watchReloads =
              [home, loop](std::function<void()> onReload) {
                return watch(home, loop, std::move(onReload));
              }};
}

} // namespace vitrelle::host
