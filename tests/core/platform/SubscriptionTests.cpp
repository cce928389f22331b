#include "core/platform/Subscription.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

TEST(Subscribers, cancelDuringNotification_isNeverCalledAgain) {
  Subscribers<int> subscribers;
  int first = 0;
  int second = 0;
  Subscription other;
  Subscription own = subscribers.add([&](int) {
    ++first;
    other.cancel();
    own.cancel();
  });
  other = subscribers.add([&](int) { ++second; });

  subscribers.notify(1);
  subscribers.notify(2);

  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 0) << "it was cancelled before its turn";
  EXPECT_TRUE(subscribers.empty());
}

TEST(Subscribers, addDuringNotification_isCalledFromTheNextOn) {
  Subscribers<> subscribers;
  int late = 0;
  std::vector<Subscription> kept;
  kept.push_back(subscribers.add([&] {
    if (kept.size() == 1) kept.push_back(subscribers.add([&] { ++late; }));
  }));
  subscribers.notify();
  EXPECT_EQ(late, 0);
  subscribers.notify();
  EXPECT_EQ(late, 1);
}

TEST(Subscription, movedOrOutlivingItsList_cancelsOnce) {
  int cancelled = 0;
  {
    Subscription first([&] { ++cancelled; });
    Subscription second = std::move(first);
    first.cancel(); // NOLINT(bugprone-use-after-move): an empty subscription is harmless
    EXPECT_EQ(cancelled, 0);
    second = Subscription();
    EXPECT_EQ(cancelled, 1);
  }
  EXPECT_EQ(cancelled, 1);

  Subscription orphan;
  {
    Subscribers<> subscribers;
    orphan = subscribers.add([] {});
  }
  orphan.cancel();
}

} // namespace
} // namespace vitrelle
