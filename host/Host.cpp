#include "host/Host.h"

#include "host/imaging/ImageFile.h"
#include "host/store/SqliteDefaults.h"

#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

/// Whoever draws widgets watches this file's time of change.
void touchTimelines(const HomeFolder& home) {
  int file = open(home.timelinesFile().c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  if (file < 0 && makeFolder(home.path())) {
    file = open(home.timelinesFile().c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  }
  if (file < 0) return;
  futimens(file, nullptr);
  close(file);
}

DebugConsole makeDebugConsole(bool verbose) {
  return {.print = [verbose](const std::string& line) {
    if (verbose) std::fprintf(stderr, "%s\n", line.c_str());
  }};
}

} // namespace

Platform makePlatform(const HostOptions& options, const EventLoop& loop) {
  const HomeFolder& home = options.home;
  const PhoneChoice phone = choosePhone(home, options.phone);
  return {
      .defaults = makeSqliteDefaults(home.path(), loop),
      .files = home.files(),
      .images = makeImages(home),
      .device = makeDevice(phone),
      .phoneBook = makePhoneBook(home, phone),
      .widgetCenter = {.reloadAllTimelines = [home] { touchTimelines(home); }},
      .bundle = {.identifier =
                     [] { return std::optional<std::string>("com.quillmeresoftware.vitrelle"); }},
      .debugConsole = makeDebugConsole(options.verbose)};
}

} // namespace vitrelle::host
