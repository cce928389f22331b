#include "tests/cli/Program.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

using MusicCommandTest = test::ProgramTest;

TEST_F(MusicCommandTest, withoutABus_nothingPlays) {
  const test::Outcome lines = run({"music"});
  EXPECT_EQ(lines.status, 0);
  EXPECT_EQ(lines.complaints, "");
  EXPECT_EQ(lines.output, "playingState = 0\n"
                          "title = Unknown Title\n"
                          "albumTitle = Unknown Album\n"
                          "artist = Unknown Artist\n"
                          "artwork = none\n");
  EXPECT_EQ(run({"music", "--json"}).output,
            R"({"playingState":0,"title":"Unknown Title","albumTitle":"Unknown Album",)"
            R"("artist":"Unknown Artist","artwork":null})"
            "\n");
  const test::Outcome face = run({"face", "music", "--list"});
  EXPECT_TRUE(face.output.starts_with("text \"Not Playing\"")) << face.output;
  EXPECT_EQ(face.complaints, "");
}

} // namespace
} // namespace vitrelle
