#include "host/imaging/Resize.h"

#include "host/imaging/ImageFile.h"
#include "host/imaging/PngWriter.h"
#include "tests/host/imaging/LibpngPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <numbers>
#include <string>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

using Rgba = std::array<double, 4>;
using Paint = std::function<Rgba(double x, double y)>;

/// A painting of the unit square, at a size.
Bitmap paint(const PixelSize& size, const Paint& colourAt) {
  Data pixels;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (const double sample : colourAt((x + 0.5) / size.width, (y + 0.5) / size.height))
        pixels.push_back(static_cast<std::uint8_t>(std::lround(sample)));
    }
  }
  return test::bitmapOf(size, std::move(pixels));
}

double wave(double turns) {
  return 127.5 + 120 * std::sin(2 * std::numbers::pi * turns);
}

Rgba waves(double x, double y) {
  return {wave(x), wave(2 * y), wave(x + y), 255};
}

/// What is cut out of a photo: a disc with a hard edge, and a wrong colour where nothing is seen.
Rgba cutOut(double x, double y) {
  if (std::hypot(x - 0.5, y - 0.5) > 0.4) return {0, 255, 0, 0};
  return {wave(x), 20, wave(y), 255};
}

/// The same with an edge that fades out.
Rgba soft(double x, double y) {
  const double alpha = std::clamp(1.6 - 3.2 * std::hypot(x - 0.5, y - 0.5), 0.0, 1.0);
  return {wave(x), 40, wave(y), 255 * alpha};
}

double mitchell(double x) {
  constexpr double b = 1.0 / 3;
  constexpr double c = 1.0 / 3;
  x = std::abs(x);
  if (x < 1)
    return ((12 - 9 * b - 6 * c) * x * x * x + (-18 + 12 * b + 6 * c) * x * x + 6 - 2 * b) / 6;
  if (x >= 2) return 0;
  return ((-b - 6 * c) * x * x * x + (6 * b + 30 * c) * x * x + (-12 * b - 48 * c) * x + 8 * b +
          24 * c) /
         6;
}

/// The weight of every pixel of one direction in pixel `i` of the result.
std::vector<double> weights(int from, int to, int i) {
  if (from == to) {
    std::vector<double> one(static_cast<std::size_t>(from));
    one[static_cast<std::size_t>(i)] = 1;
    return one;
  }
  const double step = static_cast<double>(from) / to;
  std::vector<double> all;
  double sum = 0;
  for (int at = 0; at < from; ++at) {
    all.push_back(mitchell((at + 0.5 - (i + 0.5) * step) / std::max(step, 1.0)));
    sum += all.back();
  }
  for (double& weight : all)
    weight /= sum;
  return all;
}

/// Colours times alpha, cut to what can be.
Rgba possible(Rgba sum) {
  const double alpha = std::clamp(sum[3], 0.0, 1.0);
  for (std::size_t i = 0; i < 3; ++i)
    sum[i] = sum[3] > 0 ? std::clamp(sum[i] / sum[3], 0.0, 255.0) * alpha : 0;
  sum[3] = alpha;
  return sum;
}

/// The slow way: each pixel of the result out of all pixels of the source.
Rgba reference(const Bitmap& source, const PixelSize& size, int x, int y) {
  const auto columns = weights(source.size.width, size.width, x);
  const auto rows = weights(source.size.height, size.height, y);
  Rgba sum{};
  for (int u = 0; u < source.size.width; ++u) {
    Rgba column{};
    for (int v = 0; v < source.size.height; ++v) {
      const std::uint8_t* pixel = source.row(v) + 4 * u;
      const double alpha = rows[static_cast<std::size_t>(v)] * pixel[3] / 255;
      for (std::size_t i = 0; i < 4; ++i)
        column[i] += i < 3 ? alpha * pixel[i] : alpha;
    }
    column = possible(column);
    for (std::size_t i = 0; i < 4; ++i)
      sum[i] += columns[static_cast<std::size_t>(u)] * column[i];
  }
  sum = possible(sum);
  for (std::size_t i = 0; i < 3; ++i)
    sum[i] = sum[3] > 0 ? sum[i] / sum[3] : 0;
  sum[3] *= 255;
  return sum;
}

/// How far two pixels are apart to the eye: colours as much as they show.
double distance(const std::uint8_t* pixel, const Rgba& other) {
  double most = std::abs(pixel[3] - other[3]);
  for (std::size_t i = 0; i < 3; ++i)
    most = std::max(most, std::abs(pixel[i] * pixel[3] - other[i] * other[3]) / 255);
  return most;
}

TEST(Resize, anySize_isWhatTheSlowWayGives) {
  const std::pair<PixelSize, PixelSize> cases[] = {
      {{40, 30}, {80, 60}}, {{97, 61}, {13, 9}}, {{50, 50}, {50, 50}}, {{1, 1}, {7, 5}},
      {{1, 60}, {4, 3}},    {{64, 3}, {5, 11}},  {{30, 200}, {9, 2}},  {{23, 17}, {100, 8}},
  };
  for (const auto& [from, to] : cases) {
    for (const Paint& painting : {Paint(waves), Paint(cutOut), Paint(soft)}) {
      const Bitmap source = paint(from, painting);
      const Bitmap made = resizeBitmap(source, to).value();
      ASSERT_EQ(made.size, to);
      for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width; ++x) {
          ASSERT_LE(distance(made.row(y) + 4 * x, reference(source, to, x, y)), 1.5)
              << from.width << "x" << from.height << " to " << to.width << "x" << to.height
              << " at " << x << ", " << y;
        }
      }
    }
  }
}

TEST(Resize, transparentPixels_lendNoColourToTheEdge) {
  const Bitmap source = paint({300, 300}, cutOut);
  for (const PixelSize& size : {PixelSize{800, 800}, PixelSize{70, 70}}) {
    const Bitmap made = resizeBitmap(source, size).value();
    int halves = 0;
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        const std::uint8_t* pixel = made.row(y) + 4 * x;
        if (pixel[3] > 100 && pixel[3] < 155) ++halves;
        if (pixel[3] == 0) {
          EXPECT_EQ(pixel[1], 0) << "what is not seen is black";
        } else {
          EXPECT_NEAR(pixel[1], 20, pixel[3] > 8 ? 1 : 12) << "alpha " << int{pixel[3]};
        }
      }
    }
    EXPECT_GT(halves, size.width / 4) << "the edge is soft";
  }
}

TEST(Resize, opaquePicture_staysOpaqueAndKeepsItsProfile) {
  Bitmap plain = paint({301, 77}, waves);
  plain.opaque = true;
  const Images images = makeImages(HomeFolder("/nowhere"));
  ColourProfile profile;
  profile.icc = {1, 2, 3};
  const Image source(plain, profile);
  const Image made = images.resized(source, {800, 205}).value();
  EXPECT_TRUE(isOpaque(made.bitmap().value()));
  plain.opaque = false; // nobody has looked
  Bitmap looked = resizeBitmap(plain, {90, 900}).value();
  EXPECT_TRUE(isOpaque(looked));
  EXPECT_EQ(made.profile(), profile);
}

TEST(Resize, sameSize_isTheSamePicture) {
  const Bitmap source = paint({80, 60}, soft);
  const Bitmap once = resizeBitmap(source, source.size).value();
  Data want = test::packedPixels(source);
  for (std::size_t i = 0; i < want.size(); i += 4) {
    if (want[i + 3] == 0) std::fill_n(want.begin() + static_cast<std::ptrdiff_t>(i), 3, 0);
  }
  EXPECT_EQ(test::packedPixels(once), want);
}

TEST(Resize, sizesOutOfBounds_areRefusedInWords) {
  const Bitmap thin = paint({1, 4000}, waves);
  const auto made = resizeBitmap(thin, {800, 3'200'000});
  ASSERT_FALSE(made);
  EXPECT_EQ(made.failure().why, "800 by 3200000 pixels are more than a picture can have");
  EXPECT_FALSE(resizeBitmap(thin, {0, 10}));
  EXPECT_FALSE(resizeBitmap(Bitmap(), {10, 10}));
}

/// ImageMagick takes the same filter for pictures with an alpha channel, and a sharper one to make
/// others smaller.
TEST(Resize, smoothPictures_areThoseOfImageMagick) {
  if (std::system("command -v convert >/dev/null 2>&1") != 0) GTEST_SKIP() << "no ImageMagick";
  std::string pattern = (fs::temp_directory_path() / "resizeXXXXXX").string();
  const fs::path folder = mkdtemp(pattern.data());
  for (const Paint& painting : {Paint(waves), Paint(soft), Paint(cutOut)}) {
    for (const PixelSize& from : {PixelSize{400, 300}, PixelSize{2000, 1334}}) {
      const PixelSize to{800, (800 * from.height + from.width - 1) / from.width};
      const Bitmap source = paint(from, painting);
      PngWriter writer;
      const auto png = writer.encode(source, {});
      std::ofstream(folder / "in.png", std::ios::binary)
          .write(reinterpret_cast<const char*>(png.data()),
                 static_cast<std::streamsize>(png.size()));
      const std::string size = std::to_string(to.width) + "x" + std::to_string(to.height) + "!";
      const std::string command = "cd " + folder.string() + " && convert in.png -resize '" + size +
                                  "' -depth 8 PNG32:out.png";
      ASSERT_EQ(std::system(command.c_str()), 0) << command;
      const Bitmap theirs = loadImageFile((folder / "out.png").string()).value().bitmap().value();
      const Bitmap ours = resizeBitmap(source, to).value();
      ASSERT_EQ(theirs.size, to);
      double most = 0;
      for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width; ++x) {
          const std::uint8_t* pixel = theirs.row(y) + 4 * x;
          const double apart = distance(
              ours.row(y) + 4 * x, {static_cast<double>(pixel[0]), static_cast<double>(pixel[1]),
                                    static_cast<double>(pixel[2]), static_cast<double>(pixel[3])});
          most = std::max(most, apart);
        }
      }
      EXPECT_LE(most, 2) << from.width << " wide";
    }
  }
  fs::remove_all(folder);
}

} // namespace
} // namespace vitrelle::host
