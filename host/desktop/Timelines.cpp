#include "host/desktop/Timelines.h"

#include "host/desktop/FileWatch.h"

#include <utility>

#include <fcntl.h>
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

Subscription watch(const HomeFolder& home, const EventLoop& loop, std::function<void()> onReload) {
  if (!makeFolder(home.path())) return {};
  return watchFile(home.timelinesFile(), loop, std::move(onReload));
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
