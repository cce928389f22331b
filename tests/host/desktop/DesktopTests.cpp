#include "host/desktop/AppInstance.h"
#include "host/desktop/EndSignals.h"
#include "host/desktop/MainQueue.h"
#include "host/desktop/PollLoop.h"
#include "host/desktop/Timelines.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

class DesktopTest : public testing::Test {
 protected:
  ~DesktopTest() override { fs::remove_all(folder); }

  /// Ends the loop when it takes too long, which fails the test.
  void run() {
    const auto tooLong = makeMainQueue(loop.operations()).asyncAfter(10, [this] {
      ADD_FAILURE() << "nothing came";
      loop.stop();
    });
    loop.run();
  }

  static fs::path makeTemporary() {
    std::string pattern = (fs::temp_directory_path() / "desktop-XXXXXX").string();
    return mkdtemp(pattern.data());
  }

  const fs::path folder = makeTemporary();
  // So long that no socket could be bound by its path.
  HomeFolder home{(folder / std::string(150, 'h')).string()};
  PollLoop loop;
};

TEST_F(DesktopTest, links_reachTheOneInstance) {
  const auto claim = [&] { return AppInstance::claim(home, loop.operations()).value(); };
  std::unique_ptr<AppInstance> first = claim();
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(claim(), nullptr);

  struct stat status {};
  ASSERT_EQ(stat((home.path() + "/app.socket").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);

  std::vector<std::string> received;
  first->onLink([&](const std::string& url) {
    received.push_back(url);
    if (received.size() == 3) loop.stop();
  });
  const std::string longest(longestLink, 'x');
  std::thread sender([&] {
    const Links links = makeLinks(home);
    for (const std::string& url : {std::string("vitrelle://support/a\nb"), std::string(), longest})
      EXPECT_TRUE(links.send(url).value()) << url.size();
    EXPECT_FALSE(links.send(longest + "x"));
  });
  run();
  sender.join();
  EXPECT_EQ(received, (std::vector<std::string>{"vitrelle://support/a\nb", "", longest}));

  first = nullptr;
  EXPECT_FALSE(makeLinks(home).send("vitrelle://support").value());
  EXPECT_NE(claim(), nullptr) << "what is left of the last instance is in nobody's way";
}

TEST_F(DesktopTest, reloads_areSeenByWatchers) {
  const WidgetCenter here = makeWidgetCenter(home, loop.operations());
  const WidgetCenter elsewhere = makeWidgetCenter(home, loop.operations());
  int reloads = 0;
  auto watching = here.watchReloads([&] {
    ++reloads;
    loop.stop();
  });
  elsewhere.reloadAllTimelines();
  run();
  EXPECT_EQ(reloads, 1);
}

TEST_F(DesktopTest, requestsToEnd_comeInsideTheLoop) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    bool ended = false;
    const EndSignals signals(loop.operations(), [&] {
      ended = true;
      loop.stop();
    });
    kill(getpid(), signal);
    EXPECT_FALSE(ended) << "not in the midst of something";
    run();
    EXPECT_TRUE(ended) << signal;
  }
}

using DesktopDeathTest = DesktopTest;

TEST_F(DesktopDeathTest, secondRequestToEnd_isObeyedAtOnce) {
  const EndSignals signals(loop.operations(), [] {});
  const auto raiseTwice = [] {
    raise(SIGTERM);
    raise(SIGTERM);
  };
  EXPECT_EXIT(raiseTwice(), testing::KilledBySignal(SIGTERM), "");
}

TEST_F(DesktopTest, requestToEndThatIsIgnored_staysSo) {
  std::signal(SIGINT, SIG_IGN);
  {
    const EndSignals signals(loop.operations(), [] { ADD_FAILURE() << "it is to be ignored"; });
    raise(SIGINT);
    const auto end = makeMainQueue(loop.operations()).asyncAfter(0.05, [this] { loop.stop(); });
    run();
  }
  std::signal(SIGINT, SIG_DFL);
}

TEST_F(DesktopTest, queuedWork_runsOnceUnlessItIsCancelled) {
  const MainQueue queue = makeMainQueue(loop.operations());
  int runs = 0;
  const auto once = queue.asyncAfter(0.01, [&] { ++runs; });
  auto never = queue.asyncAfter(0.01, [&] { ADD_FAILURE(); });
  never.cancel();
  const auto end = queue.asyncAfter(0.1, [&] { loop.stop(); });
  run();
  EXPECT_EQ(runs, 1);
}

} // namespace
} // namespace vitrelle::host
