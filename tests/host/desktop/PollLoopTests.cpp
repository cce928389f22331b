#include "host/desktop/PollLoop.h"

#include <gtest/gtest.h>

#include <csignal>
#include <unistd.h>

namespace vitrelle::host {
namespace {

TEST(PollLoop, run_deliversReadersAndTimersUntilStopped) {
  PollLoop loop;
  const EventLoop operations = loop.operations();
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  int ticks = 0;
  char read = 0;
  const Subscription reader = operations.whenReadable(ends[0], [&] {
    ASSERT_EQ(::read(ends[0], &read, 1), 1);
    loop.stop();
  });
  const Subscription timer = operations.every(0.001, [&] {
    if (++ticks == 3) {
      EXPECT_EQ(write(ends[1], "x", 1), 1);
    }
  });
  loop.run();
  EXPECT_EQ(read, 'x');
  EXPECT_GE(ticks, 3);
  close(ends[0]);
  close(ends[1]);
}

TEST(PollLoop, interrupt_endsTheRunAndLeavesTheProgramAlive) {
  PollLoop loop;
  const Subscription timer = loop.operations().every(0.001, [] { raise(SIGINT); });
  loop.run();
  SUCCEED() << "still here";
}

} // namespace
} // namespace vitrelle::host
