// A home folder of its own for each test of the stores, with an event loop and other processes.
#pragma once

#include "host/desktop/PollLoop.h"
#include "host/store/SqliteDefaults.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vitrelle::host {

namespace fs = std::filesystem;

class SqliteDefaultsTest : public testing::Test {
 protected:
  SqliteDefaultsTest() {
    std::string pattern = fs::temp_directory_path() / "store-tests.XXXXXX";
    folder = mkdtemp(pattern.data());
    home = folder + "/deep/home";
  }
  ~SqliteDefaultsTest() override { fs::remove_all(folder); }

  Defaults open() { return makeSqliteDefaults(home, loop.operations()); }
  std::string groupFile() const { return home + "/" + groupIdentifier + ".sqlite"; }

  /// A process of its own; its exit status is whether `work` succeeds.
  static pid_t start(const std::function<bool()>& work) {
    const pid_t child = fork();
    if (child == 0) _exit(work() ? 0 : 1);
    return child;
  }
  static bool succeeded(pid_t child) {
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  /// In a process of its own: makes the home a disk of its own. Most containers don't let us.
  bool mountDisk(const std::string& options) const {
    return unshare(CLONE_NEWNS) == 0 && mount("", "/", "", MS_REC | MS_PRIVATE, "") == 0 &&
           mount("tmpfs", home.c_str(), "tmpfs", 0, options.c_str()) == 0;
  }
  bool canMount() const {
    return succeeded(start([&] { return mountDisk("size=64k"); }));
  }

  /// Runs the loop until `done`, for ten seconds at most.
  bool runUntil(const std::function<bool()>& done) {
    int ticks = 0;
    const Subscription timer = loop.operations().every(0.002, [&] {
      if (done() || ++ticks == 5000) loop.stop();
    });
    loop.run();
    return done();
  }

  PollLoop loop;
  std::string folder;
  std::string home;
};

/// The value, or a string that tells why there is none.
inline StoreValue read(const Defaults& defaults, Suite suite, const std::string& key) {
  const auto value = defaults.value(suite, key);
  if (!value) return value.failure().what + ": " + value.failure().why;
  return value->value_or(StoreValue(std::string("absent")));
}

} // namespace vitrelle::host
