#include "host/imaging/IsolatedDecoder.h"

#include "tests/host/imaging/LibpngPeer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <thread>
#include <vector>

#include <sys/wait.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr const char* broken = "the picture is damaged or needs too much memory";

Data answerOf(const Result<DecodedPicture>& picture) {
  Data answer;
  EXPECT_TRUE(writeAnswer(picture, [&](std::span<const std::uint8_t> bytes) {
    answer.insert(answer.end(), bytes.begin(), bytes.end());
    return true;
  }));
  return answer;
}

AnswerSource sourceOf(std::span<const std::uint8_t> answer) {
  return [answer](std::span<std::uint8_t> out) mutable {
    const std::size_t count = std::min(out.size(), answer.size());
    std::ranges::copy(answer.first(count), out.begin());
    answer = answer.subspan(count);
    return count;
  };
}

DecodedPicture somePicture() {
  DecodedPicture picture{.bitmap = test::bitmapOf({3, 2}, Data(24, 77)), .profile = {}};
  picture.profile.cicp = {12, 13, 0, 1};
  return picture;
}

TEST(DecoderAnswer, picturesAndSizes_arriveWhole) {
  const DecodedPicture picture = somePicture();
  const auto back = readAnswer(Wanted::picture, "HEIC", sourceOf(answerOf(picture)));
  ASSERT_TRUE(back && *back);
  EXPECT_EQ(test::packedPixels((*back)->bitmap), test::packedPixels(picture.bitmap));
  EXPECT_EQ((*back)->profile, picture.profile);

  DecodedPicture size;
  size.bitmap.size = {1179, 2556};
  const Data answer = answerOf(size);
  const auto sizeBack = readAnswer(Wanted::size, "HEIC", sourceOf(answer));
  ASSERT_TRUE(sizeBack && *sizeBack);
  EXPECT_EQ((*sizeBack)->bitmap.size, size.bitmap.size);
  EXPECT_FALSE(readAnswer(Wanted::picture, "HEIC", sourceOf(answer))) << "there are no pixels";
}

TEST(DecoderAnswer, wordsOfAFailure_areBoundedAndFitForATerminal) {
  const auto words = [](const std::string& why) {
    const auto back = readAnswer(Wanted::size, "HEIC", sourceOf(answerOf(Failure{"HEIC", why})));
    return back && !*back ? back->failure().why : "no failure";
  };
  EXPECT_EQ(words("the file has no picture (No 'ftyp' box)"),
            "the file has no picture (No 'ftyp' box)");
  EXPECT_EQ(words("\x1B[2J red\nline \xC3\xA9"), "?[2J red?line ??");
  EXPECT_EQ(words(std::string(5000, 'x')), std::string(200, 'x'));
}

TEST(DecoderAnswer, everyOtherLength_isNoAnswer) {
  Data answer = answerOf(somePicture());
  for (std::size_t length = 0; length < answer.size(); ++length) {
    EXPECT_FALSE(readAnswer(Wanted::picture, "HEIC", sourceOf(std::span(answer).first(length))))
        << length;
  }
  answer.push_back(0);
  EXPECT_FALSE(readAnswer(Wanted::picture, "HEIC", sourceOf(answer)));
}

/// Shell scripts in the place of the decoder.
class IsolatedDecoderTest : public testing::Test {
 protected:
  IsolatedDecoderTest() {
    std::string pattern = (fs::temp_directory_path() / "decoderXXXXXX").string();
    folder = mkdtemp(pattern.data());
    answer = (folder / "answer").string();
    write(answer, answerOf(somePicture()));
  }
  ~IsolatedDecoderTest() override {
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
    EXPECT_EQ(openDescriptors(), descriptorsBefore);
    fs::remove_all(folder);
  }

  static void write(const std::string& path, const Data& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  }
  static std::ptrdiff_t openDescriptors() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), {});
  }

  IsolatedDecoder script(const std::string& commands, std::chrono::milliseconds patience = 20s) {
    const std::string path = (folder / ("decoder" + std::to_string(++scripts))).string();
    const std::string text = "#!/bin/sh\n" + commands + "\n";
    write(path, Data(text.begin(), text.end()));
    fs::permissions(path, fs::perms::owner_all);
    return {.format = "HEIC", .program = path, .patience = patience};
  }
  static std::string why(const IsolatedDecoder& decoder) {
    const auto picture = decodeIsolated(decoder, Wanted::picture, Data(100, 7));
    return picture ? "decoded" : picture.failure().why;
  }

  fs::path folder;
  std::string answer;
  int scripts = 0;
  std::ptrdiff_t descriptorsBefore = openDescriptors();
};

TEST_F(IsolatedDecoderTest, file_comesAsStandardInputAndTheAnswerBack) {
  const auto decoder = script("[ $1 = picture ] && [ $(wc -c) = 100 ] && cat " + answer);
  const auto picture = decodeIsolated(decoder, Wanted::picture, Data(100, 7));
  ASSERT_TRUE(picture) << picture.failure().why;
  EXPECT_EQ(test::packedPixels(picture->bitmap), Data(24, 77));
}

TEST_F(IsolatedDecoderTest, programThatDoesNotAnswer_isAFailureInWords) {
  EXPECT_EQ(why({.format = "HEIC", .program = "/none/decoder"}),
            "/none/decoder can't be started (No such file or directory)");
  const std::pair<std::string, std::string> cases[] = {
      {"exit 0", broken},
      {"head -c 20 " + answer, broken},
      {"cat " + answer + " " + answer, broken},
      {"exec cat /dev/zero", broken},
      {"exec cat /dev/urandom", broken},
      {"kill -SEGV $$", broken},
      {"echo words >&2; exec >&-; exit 3", broken},
      {"exit 127", "can't be started (a library is missing)"},
  };
  testing::internal::CaptureStderr();
  for (const auto& [commands, words] : cases)
    EXPECT_NE(why(script(commands)).find(words), std::string::npos) << commands;
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(IsolatedDecoderTest, programThatHangs_isEnded) {
  const char* tooLong = "decoding the picture takes too long";
  const auto start = Clock::now();
  EXPECT_EQ(why(script("exec sleep 100", 200ms)), tooLong);
  EXPECT_EQ(why(script("exec >&-; exec sleep 100")), broken) << "it closed its output";
  EXPECT_EQ(why(script("head -c 20 " + answer + "; exec sleep 100", 200ms)), tooLong);
  EXPECT_EQ(why(script("cat " + answer + "; exec sleep 100", 200ms)), tooLong);
  EXPECT_EQ(why(script("trap '' TERM; while :; do printf .; sleep 0.05; done", 200ms)), tooLong);
  EXPECT_LT(Clock::now() - start, 10s);
}

TEST_F(IsolatedDecoderTest, slowProgram_keepsNoOtherWaiting) {
  const auto slow = script("exec sleep 100", 3s);
  const auto quick = script("cat " + answer);
  std::atomic<int> late = 0;
  std::vector<std::jthread> threads;
  const auto start = Clock::now();
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&, i] {
      EXPECT_EQ(why(i % 2 == 0 ? slow : quick) == "decoded", i % 2 != 0);
      if (i % 2 != 0 && Clock::now() - start > 2s) ++late;
    });
  }
  threads.clear();
  EXPECT_EQ(late, 0);
}

} // namespace
} // namespace vitrelle::host
