#include "core/families/music/AlphaViewForNowPlaying.h"

#include "tests/core/lifecycle/LifecycleTest.h"

namespace vitrelle {
namespace {

class MusicGateTest : public test::LifecycleTest {};

TEST_F(MusicGateTest, gate_waitsForBothAnswersAndAsksAnewEachTime) {
  AlphaViewForNowPlaying gate(platform);
  int changes = 0;
  const auto view = gate.onChange([&] { ++changes; });
  gate.appear();
  EXPECT_EQ(gate.state(), GateState::waiting);
  EXPECT_TRUE(music.subscriptions.questions().empty()) << "one after the other";
  ASSERT_TRUE(music.authorisations.answer({}));
  EXPECT_EQ(gate.state(), GateState::waiting);
  ASSERT_TRUE(music.subscriptions.answer(false));
  EXPECT_EQ(gate.state(), GateState::refused);
  EXPECT_EQ(changes, 1);
  gate.press();
  EXPECT_EQ(music.offers, 1);
  EXPECT_TRUE(gate.isShowingAppleMusicOffer());

  gate.appear();
  EXPECT_EQ(gate.state(), GateState::refused) << "no spinner the second time";
  ASSERT_TRUE(music.authorisations.answer({}));
  ASSERT_TRUE(music.subscriptions.answer(true));
  EXPECT_EQ(gate.state(), GateState::open);
}

TEST_F(MusicGateTest, gateThatIsLeft_isNotCalled) {
  {
    AlphaViewForNowPlaying gate(platform);
    gate.appear();
    music.authorisations.answer({});
  }
  EXPECT_FALSE(music.subscriptions.answer(true));
}

} // namespace
} // namespace vitrelle
