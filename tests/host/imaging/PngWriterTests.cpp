#include "host/imaging/PngWriter.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/PngReader.h"
#include "tests/host/imaging/LibpngPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <random>
#include <span>
#include <string_view>

#include <libdeflate.h>

namespace vitrelle::host {
namespace {

using Paint = std::function<std::array<int, 4>(int x, int y)>;

Bitmap paint(PixelSize size, const Paint& colourAt) {
  Data pixels;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (const int sample : colourAt(x, y))
        pixels.push_back(static_cast<std::uint8_t>(sample));
    }
  }
  return test::bitmapOf(size, std::move(pixels));
}

Paint noise() {
  return [random = std::mt19937(3)](int, int) mutable {
    const auto sample = [&] { return static_cast<int>(random() % 256); };
    return std::array{sample(), sample(), sample(), 255};
  };
}

/// Short stretches of repeated strings, which the search for repeats lives on.
Paint tiles() {
  return [](int x, int y) {
    const int tile = (x / 3 * 7 + y / 11 * 5) % 23;
    return std::array{tile * 11, (x % 3) * 90, y % 11 < 4 ? 200 : tile, 255};
  };
}

const std::pair<const char*, Paint> paintings[] = {
    {"flat",
     [](int, int) {
       return std::array{9, 99, 199, 255};
     }},
    {"noise", noise()},
    {"tiles", tiles()},
    {"slope",
     [](int x, int y) {
       return std::array{x / 5, y / 3, (x + y) / 9, 255};
     }},
    {"text",
     [](int x, int y) {
       return (x * x + y / 7 * 3) % 97 < 5 && y % 19 < 9 ? std::array{20, 20, 20, 255}
                                                         : std::array{250, 250, 250, 255};
     }},
    {"alpha",
     [](int x, int y) {
       return std::array{x, y, x ^ y, (x + y) % 256};
     }},
};

TEST(PngWriter, everyPicture_comesBackThroughLibpngAndThroughUs) {
  PngWriter writer; // one for all: its memory must not leak from one picture into the next
  for (const PixelSize size : {PixelSize{1, 1},
                               {2, 1},
                               {1, 70},
                               {5, 3},
                               {64, 64},
                               {333, 257},
                               {1179, 300},
                               {20'000, 12}}) {
    for (const auto& [name, colourAt] : paintings) {
      const Bitmap bitmap = paint(size, colourAt);
      const auto file = writer.encode(bitmap, {});
      PixelSize readSize;
      const Data expected = test::packedPixels(bitmap);
      EXPECT_EQ(test::readWithLibpng(file, readSize), expected) << name << ' ' << size.width;
      EXPECT_EQ(readSize, size);
      const auto own = decodePng(file);
      ASSERT_TRUE(own) << name << ' ' << size.width << ": " << own.failure().why;
      EXPECT_EQ(test::packedPixels(own->bitmap), expected) << name << ' ' << size.width;
    }
  }
}

TEST(PngWriter, sizes_areThoseOfCompressedPictures) {
  // Valid files that are not compressed would pass every other test.
  const std::pair<const char*, double> mostOfRaw[] = {
      {"flat", 0.002}, {"noise", 1.002}, {"tiles", 0.05}, {"slope", 0.05}, {"text", 0.15}};
  PngWriter writer;
  for (const auto& [name, share] : mostOfRaw) {
    const auto* found = std::ranges::find(paintings, std::string_view(name),
                                          [](const auto& p) { return std::string_view(p.first); });
    const auto file = writer.encode(paint({700, 900}, found->second), {});
    EXPECT_LT(static_cast<double>(file.size()), share * 700 * 900 * 3) << name;
  }
}

TEST(PngWriter, opaquePictures_loseTheirAlpha) {
  PngWriter writer;
  const auto colourType = [&](const Bitmap& bitmap) { return writer.encode(bitmap, {})[25]; };
  EXPECT_EQ(colourType(paint({9, 9}, noise())), PNG_COLOR_TYPE_RGB);
  EXPECT_EQ(colourType(paint({9, 9},
                             [](int x, int y) {
                               return std::array{1, 2, 3, x == 8 && y == 8 ? 254 : 255};
                             })),
            PNG_COLOR_TYPE_RGBA);
}

Data iccOf(const char* colourSpace) {
  Data icc(300);
  icc[2] = 1; // big-endian size 300
  icc[3] = 44;
  std::copy_n(colourSpace, 4, icc.begin() + 16);
  std::copy_n("acsp", 4, icc.begin() + 36);
  return icc;
}

/// What stands in the chunk of this name, which is sound and precedes the pixels.
Data chunkNamed(std::string_view name, std::span<const std::uint8_t> file) {
  const auto find = [&](std::string_view type) {
    return std::search(file.begin(), file.end(), type.begin(), type.end());
  };
  const auto type = find(name);
  EXPECT_LT(type, find("IDAT")) << name;
  if (type == file.end()) return {};
  const std::uint8_t* start = &*type;
  const std::size_t length = readBigEndian32(start - 4);
  EXPECT_EQ(libdeflate_crc32(0, start, length + 4), readBigEndian32(start + 4 + length)) << name;
  return {start + 4, start + 4 + length};
}

TEST(PngWriter, colourChunks_areLaidOutAsReadersExpect) {
  ColourProfile profile;
  profile.icc = iccOf("RGB ");
  profile.cicp = {12, 13, 0, 1};
  profile.gamma = 45455;
  profile.srgbIntent = std::uint8_t{2};
  PngWriter writer;
  const auto file = writer.encode(paint({4, 4}, noise()), profile);
  EXPECT_EQ(chunkNamed("cICP", file), (Data{12, 13, 0, 1}));
  EXPECT_EQ(chunkNamed("gAMA", file), (Data{0, 0, 0xB1, 0x8F}));
  const Data chunk = chunkNamed("iCCP", file);
  const auto name = static_cast<std::size_t>(std::ranges::find(chunk, 0) - chunk.begin());
  ASSERT_TRUE(name >= 1 && name <= 79 && name + 2 < chunk.size());
  EXPECT_EQ(chunk[name + 1], 0) << "the only method of compression";
  Data icc(profile.icc.size());
  libdeflate_decompressor* inflate = libdeflate_alloc_decompressor();
  EXPECT_EQ(libdeflate_zlib_decompress(inflate, &chunk[name + 2], chunk.size() - name - 2,
                                       icc.data(), icc.size(), nullptr),
            LIBDEFLATE_SUCCESS);
  libdeflate_free_decompressor(inflate);
  EXPECT_EQ(icc, profile.icc);
}

TEST(PngWriter, profile_isCarriedIntoTheFile) {
  const Bitmap bitmap = paint({4, 4}, noise());
  PngWriter writer;
  const auto roundTrip = [&](const ColourProfile& profile) {
    return decodePng(writer.encode(bitmap, profile)).value().profile;
  };
  ColourProfile all;
  all.icc = iccOf("RGB ");
  all.cicp = {12, 13, 0, 1};
  all.gamma = 45455;
  all.chromaticities = {31270, 32900, 68000, 32000, 26500, 69000, 15000, 6000};
  EXPECT_EQ(roundTrip(all), all);

  ColourProfile srgb;
  srgb.srgbIntent = std::uint8_t{0};
  EXPECT_EQ(roundTrip(srgb), srgb);

  ColourProfile grey;
  grey.icc = iccOf("GRAY");
  EXPECT_EQ(roundTrip(grey), ColourProfile{}) << "a grey profile can't describe RGB samples";
}

} // namespace
} // namespace vitrelle::host
