#include "host/desktop/Worker.h"

#include "host/desktop/PollLoop.h"

#include <gtest/gtest.h>

#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <vector>

namespace vitrelle::host {
namespace {

class WorkerTest : public testing::Test {
 protected:
  using Done = std::function<void(const int&)>;

  std::function<int()> piece(int number) {
    return [this, number] {
      EXPECT_NE(std::this_thread::get_id(), own);
      return number;
    };
  }
  /// Holds the thread until the promise is kept.
  std::function<int()> wall() {
    return [open = opened.get_future().share()] {
      open.wait();
      return 0;
    };
  }

  const std::thread::id own = std::this_thread::get_id();
  PollLoop loop;
  std::promise<void> opened;
  std::vector<int> done;
  const Done note = [this](int number) {
    EXPECT_EQ(std::this_thread::get_id(), own);
    done.push_back(number);
  };
  const Done end = [this](int) { loop.stop(); };
};

TEST_F(WorkerTest, answers_comeOnTheMainThreadInOrderAndLater) {
  Worker worker(loop.operations());
  const Subscription one = worker.run(piece(1), note);
  const Subscription two = worker.run(piece(2), note);
  const Subscription last = worker.run(piece(3), end);
  EXPECT_TRUE(done.empty());
  loop.run();
  EXPECT_EQ(done, (std::vector<int>{1, 2}));
}

TEST_F(WorkerTest, endedSubscriptions_areNotAnswered) {
  Worker worker(loop.operations());
  bool begun = false;
  Subscription behind;
  const Subscription held = worker.run(wall(), note);
  Subscription notBegun = worker.run(std::function<int()>([&] {
                                       begun = true;
                                       return 1;
                                     }),
                                     note);
  const Subscription ending = worker.run(piece(0), Done([&](int) { behind.cancel(); }));
  behind = worker.run(piece(2), note);
  const Subscription last = worker.run(piece(3), end);
  notBegun.cancel();
  opened.set_value();
  loop.run();
  EXPECT_FALSE(begun);
  EXPECT_EQ(done, std::vector<int>{0});
}

TEST_F(WorkerTest, mayBeDestroyedByAnAnswer_andBeforeOne) {
  auto worker = std::make_unique<Worker>(loop.operations());
  const Subscription first = worker->run(piece(1), Done([&](int) {
                                           worker.reset();
                                           loop.stop();
                                         }));
  loop.run();
  EXPECT_EQ(worker, nullptr);

  worker = std::make_unique<Worker>(loop.operations());
  const Subscription held = worker->run(wall(), note);
  const Subscription dropped = worker->run(piece(2), note);
  opened.set_value();
  worker.reset();
  const Subscription soon = loop.operations().every(0.05, [&] { loop.stop(); });
  loop.run();
  EXPECT_TRUE(done.empty());
}

} // namespace
} // namespace vitrelle::host
