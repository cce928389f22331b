#include "host/imaging/PngReader.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/PngChunks.h"
#include "host/imaging/PngFormat.h"
#include "tests/host/imaging/LibpngPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <random>
#include <string_view>

#include <libdeflate.h>

namespace vitrelle::host {
namespace {

using test::PngKind;

std::string describe(std::uint32_t width, std::uint32_t height, const PngKind& kind) {
  return std::to_string(width) + "x" + std::to_string(height) + " type " +
         std::to_string(kind.colourType) + " depth " + std::to_string(kind.bitDepth) +
         (kind.interlaced ? " interlaced" : "") + " filters " + std::to_string(kind.filters);
}

void expectSameAsLibpng(const Data& file, const std::string& what) {
  PixelSize size;
  const Data expected = test::readWithLibpng(file, size);
  const auto picture = decodePng(file);
  ASSERT_TRUE(picture) << what << ": " << picture.failure().why;
  EXPECT_EQ(picture->bitmap.size, size) << what;
  EXPECT_EQ(test::packedPixels(picture->bitmap), expected) << what;
  bool seeThrough = false;
  for (std::size_t alpha = 3; alpha < expected.size(); alpha += 4)
    seeThrough = seeThrough || expected[alpha] != 255;
  EXPECT_FALSE(picture->bitmap.opaque && seeThrough) << what << " would lose its alpha";
}

/// The file with more of it behind its header.
Data withChunks(Data file, const Data& chunks) {
  file.insert(file.begin() + pngHeaderBytes, chunks.begin(), chunks.end());
  return file;
}

Data chunk(std::string_view type, const Data& content) {
  Data bytes(4);
  writeBigEndian32(bytes.data(), static_cast<std::uint32_t>(content.size()));
  bytes.insert(bytes.end(), type.begin(), type.end());
  bytes.insert(bytes.end(), content.begin(), content.end());
  bytes.resize(bytes.size() + 4);
  writeBigEndian32(&bytes[8 + content.size()], libdeflate_crc32(0, &bytes[4], 4 + content.size()));
  return bytes;
}

Data zlibStream(const Data& content) {
  libdeflate_compressor* compressor = libdeflate_alloc_compressor(6);
  Data bytes(libdeflate_zlib_compress_bound(compressor, content.size()));
  bytes.resize(libdeflate_zlib_compress(compressor, content.data(), content.size(), bytes.data(),
                                        bytes.size()));
  libdeflate_free_compressor(compressor);
  return bytes;
}

TEST(PngReader, everyKindOfFile_hasLibpngsPixels) {
  const std::pair<int, std::vector<int>> kinds[] = {{PNG_COLOR_TYPE_GRAY, {1, 2, 4, 8, 16}},
                                                    {PNG_COLOR_TYPE_RGB, {8, 16}},
                                                    {PNG_COLOR_TYPE_PALETTE, {1, 2, 4, 8}},
                                                    {PNG_COLOR_TYPE_GRAY_ALPHA, {8, 16}},
                                                    {PNG_COLOR_TYPE_RGBA, {8, 16}}};
  for (const auto& [colourType, depths] : kinds) {
    for (const int depth : depths) {
      for (const bool interlaced : {false, true}) {
        for (const auto& [width, height] : {std::pair(1U, 1U), {1U, 9U}, {9U, 1U}, {31U, 17U}}) {
          const PngKind kind{depth, colourType, interlaced};
          expectSameAsLibpng(test::writeWithLibpng(width, height, kind),
                             describe(width, height, kind));
        }
      }
    }
  }
}

TEST(PngReader, everyFilter_isTakenOff) {
  for (const int filters :
       {PNG_FILTER_NONE, PNG_FILTER_SUB, PNG_FILTER_UP, PNG_FILTER_AVG, PNG_FILTER_PAETH,
        PNG_ALL_FILTERS, PNG_FILTER_SUB | PNG_FILTER_PAETH, PNG_FILTER_UP | PNG_FILTER_AVG}) {
    for (const int colourType : {PNG_COLOR_TYPE_RGB, PNG_COLOR_TYPE_RGBA}) {
      for (const std::uint32_t height : {2U, 3U, 64U, 301U}) {
        const PngKind kind{8, colourType, false, filters};
        expectSameAsLibpng(test::writeWithLibpng(257, height, kind), describe(257, height, kind));
      }
    }
  }
}

TEST(PngReader, everyOrderOfFilters_isTakenOff) {
  for (const int colourType : {PNG_COLOR_TYPE_RGB, PNG_COLOR_TYPE_RGBA}) {
    for (const std::uint32_t width : {1U, 2U, 5U, 16U, 61U, 1179U}) {
      const PngKind kind{.colourType = colourType, .filterAtRandom = true};
      expectSameAsLibpng(test::writeWithLibpng(width, 800, kind), describe(width, 800, kind));
    }
  }
}

TEST(PngReader, pixelsInManySmallChunks_areJoined) {
  for (const std::size_t chunk : {6U, 7U, 64U, 1000U}) {
    const auto split = [&](png_structp png, png_infop) {
      png_set_compression_buffer_size(png, chunk);
    };
    for (const int colourType : {PNG_COLOR_TYPE_RGB, PNG_COLOR_TYPE_PALETTE}) {
      expectSameAsLibpng(test::writeWithLibpng(90, 33, {8, colourType}, split),
                         std::to_string(chunk) + " bytes, type " + std::to_string(colourType));
    }
  }
}

TEST(PngReader, pixelsInChunksOfAByteAndOfNone_areJoined) {
  for (const PngKind& kind : {PngKind(), {16, PNG_COLOR_TYPE_RGB}}) {
    const Data whole = test::writeWithLibpng(3000, 9, kind);
    Data file(whole.begin(), whole.begin() + pngHeaderBytes);
    const auto append = [&](const Data& bytes) {
      file.insert(file.end(), bytes.begin(), bytes.end());
    };
    PngChunks chunks(whole);
    while (const auto next = chunks.next()) {
      if (next->type != png::IDAT) continue;
      for (const std::uint8_t byte : next->data) {
        append(chunk("IDAT", {}));
        append(chunk("IDAT", {byte}));
      }
    }
    append(chunk("IEND", {}));
    expectSameAsLibpng(file, describe(3000, 9, kind));
  }
}

TEST(PngReader, transparentColour_becomesAlpha) {
  const PngKind kinds[] = {{1, PNG_COLOR_TYPE_GRAY},    {4, PNG_COLOR_TYPE_GRAY},
                           {8, PNG_COLOR_TYPE_GRAY},    {16, PNG_COLOR_TYPE_GRAY},
                           {8, PNG_COLOR_TYPE_RGB},     {8, PNG_COLOR_TYPE_RGB, true},
                           {16, PNG_COLOR_TYPE_RGB},    {1, PNG_COLOR_TYPE_PALETTE},
                           {8, PNG_COLOR_TYPE_PALETTE}, {8, PNG_COLOR_TYPE_PALETTE, true}};
  for (const PngKind& kind : kinds) {
    const Data file = test::writeWithLibpng(40, 10, kind, [](png_structp png, png_infop info) {
      const png_byte alpha[] = {0, 128};
      const png_color_16 colour{};
      png_set_tRNS(png, info, alpha, 2, &colour);
    });
    expectSameAsLibpng(file, describe(40, 10, kind));
    EXPECT_EQ(decodePng(file).value().bitmap.row(0)[3], 0) << describe(40, 10, kind);
  }
}

TEST(PngReader, colourChunks_areCarried) {
  const Data file = test::writeWithLibpng(3, 3, {}, [](png_structp png, png_infop info) {
    png_set_gAMA_fixed(png, info, 45455);
    png_set_cHRM_fixed(png, info, 31270, 32900, 68000, 32000, 26500, 69000, 15000, 6000);
  });
  const auto picture = decodePng(file);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->profile.gamma, 45455U);
  ASSERT_TRUE(picture->profile.chromaticities);
  EXPECT_EQ((*picture->profile.chromaticities)[2], 68000U);
}

/// What compressed chunks hold: a name, then a zlib stream of the content.
Data named(const Data& content) {
  Data bytes = {'n', 0, 0};
  const Data stream = zlibStream(content);
  bytes.insert(bytes.end(), stream.begin(), stream.end());
  return bytes;
}

/// Bytes that pass for a profile, the last of which tells it from others.
Data profile(std::size_t size, std::uint8_t last) {
  Data bytes(size);
  writeBigEndian32(bytes.data(), static_cast<std::uint32_t>(size));
  std::ranges::copy(std::string_view("RGB "), bytes.begin() + 16);
  std::ranges::copy(std::string_view("acsp"), bytes.begin() + 36);
  bytes.back() = last;
  return bytes;
}

TEST(PngReader, firstProfile_isTheOneCarried) {
  Data damaged = chunk("iCCP", named(profile(200, 1)));
  damaged.back() ^= 1;
  Data chunks = damaged;
  for (const std::size_t size : {200U, 300U}) {
    const Data next = chunk("iCCP", named(profile(size, 2)));
    chunks.insert(chunks.end(), next.begin(), next.end());
  }
  for (const int colourType : {PNG_COLOR_TYPE_RGBA, PNG_COLOR_TYPE_GRAY}) {
    const auto picture =
        decodePng(withChunks(test::writeWithLibpng(5, 5, {8, colourType}), chunks));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->profile.icc, profile(200, 2)) << "type " << colourType;
  }
}

TEST(PngReader, thousandsOfCompressedChunks_takeNoTime) {
  // Megabytes each: inflating all of any kind takes many seconds.
  const Data large = named(profile(std::size_t{4} << 20, 1));
  const std::pair<const char*, Data> bombs[] = {
      {"zTXt", large}, {"iCCP", large}, {"iCCP", named(Data(std::size_t{4} << 20))}};
  for (const auto& [type, content] : bombs) {
    const Data one = chunk(type, content);
    Data all;
    for (int i = 0; i < 2000; ++i)
      all.insert(all.end(), one.begin(), one.end());
    for (const PngKind& kind : {PngKind(), {16, PNG_COLOR_TYPE_RGB}, {8, PNG_COLOR_TYPE_PALETTE}}) {
      const Data file = withChunks(test::writeWithLibpng(9, 9, kind), all);
      const auto start = std::chrono::steady_clock::now();
      ASSERT_TRUE(decodePng(file)) << type;
      EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1))
          << type << ' ' << describe(9, 9, kind);
    }
  }
}

TEST(PngReader, orientationFlagAndTrailingBytes_changeNothing) {
  Data file = test::writeWithLibpng(6, 4, {}, [](png_structp png, png_infop info) {
    png_byte exif[] = {'I', 'I', 42, 0, 8, 0, 0, 0, 1, 0, 0x12, 1, 3,
                       0,   1,   0,  0, 0, 6, 0, 0, 0, 0, 0,    0, 0};
    png_set_eXIf_1(png, info, sizeof exif, exif);
  });
  file.insert(file.end(), 100, 0x55);
  expectSameAsLibpng(file, "with orientation");
  EXPECT_EQ(decodePng(file)->bitmap.size, (PixelSize{6, 4}));
}

TEST(PngReader, incompleteFile_isRefusedAtEveryLength) {
  for (const int colourType : {PNG_COLOR_TYPE_RGBA, PNG_COLOR_TYPE_PALETTE}) {
    const Data file = test::writeWithLibpng(60, 40, {8, colourType});
    const std::size_t pixelsEnd = file.size() - 12 - 4; // before the checksum and IEND
    for (std::size_t length = 0; length < pixelsEnd; length += 1 + length / 50) {
      EXPECT_FALSE(decodePng(std::span(file).first(length))) << length << " of " << file.size();
    }
  }
}

TEST(PngReader, streamOfAnotherLength_givesThePixelsOrIsRefused) {
  std::mt19937 random(7);
  const std::size_t width = 8;
  const std::size_t height = 8;
  for (const std::size_t channels : {3U, 4U}) {
    const PngKind kind{8, channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGBA};
    const Data header = test::writeWithLibpng(width, height, kind);
    Data rows((width * channels + 1) * height, 4); // each of filter 4
    const auto decode = [&](const Data& stream) {
      Data file(header.begin(), header.begin() + pngHeaderBytes);
      for (const Data& part : {chunk("IDAT", stream), chunk("IEND", {})})
        file.insert(file.end(), part.begin(), part.end());
      return decodePng(file);
    };
    Data stream = zlibStream(rows);
    const auto picture = decode(stream);
    ASSERT_TRUE(picture) << picture.failure().why;
    const Data pixels = test::packedPixels(picture->bitmap);
    const auto expectPixels = [&](const Data& longer, const char* what) {
      const auto same = decode(longer);
      ASSERT_TRUE(same) << what << ": " << same.failure().why;
      EXPECT_EQ(test::packedPixels(same->bitmap), pixels) << what;
    };
    Data longer = stream;
    longer.resize(stream.size() + 100, 7);
    expectPixels(longer, "bytes behind the stream");
    rows.resize(rows.size() + 1000);
    expectPixels(zlibStream(rows), "rows behind the picture");

    std::generate_n(std::back_inserter(rows), 200'000,
                    [&] { return static_cast<std::uint8_t>(random()); });
    EXPECT_FALSE(decode(zlibStream(rows))) << "very much behind the picture";
    rows.resize((width * channels + 1) * height - 1);
    EXPECT_FALSE(decode(zlibStream(rows))) << "a sample is missing";
    stream.back() ^= 1;
    EXPECT_FALSE(decode(stream)) << "a wrong checksum";
    stream.pop_back();
    EXPECT_FALSE(decode(stream)) << "half a checksum";
  }
}

TEST(PngReader, flippedBits_areRefusedOrHarmless) {
  testing::internal::CaptureStderr();
  std::mt19937 random(1);
  for (const int colourType : {PNG_COLOR_TYPE_RGB, PNG_COLOR_TYPE_RGBA, PNG_COLOR_TYPE_GRAY}) {
    const Data file = test::writeWithLibpng(50, 30, {8, colourType});
    const Data pixels = test::packedPixels(decodePng(file)->bitmap);
    for (int round = 0; round < 2000; ++round) {
      Data damaged = file;
      damaged[random() % damaged.size()] ^= static_cast<std::uint8_t>(1U << random() % 8);
      const auto picture = decodePng(damaged);
      if (!picture) continue;
      EXPECT_EQ(test::packedPixels(picture->bitmap), pixels) << "checksums cover every pixel";
    }
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "of the library's own";
}

TEST(PngReader, sizesThatLie_takeNoMemory) {
  const auto withSize = [](std::uint32_t width, std::uint32_t height) {
    Data file = test::writeWithLibpng(8, 8, {});
    writeBigEndian32(&file[16], width);
    writeBigEndian32(&file[20], height);
    writeBigEndian32(&file[29], libdeflate_crc32(0, &file[12], 17));
    return file;
  };
  const std::pair<std::pair<std::uint32_t, std::uint32_t>, const char*> cases[] = {
      {{0, 8}, "the picture has no pixels"},         {{8, 0}, "the picture has no pixels"},
      {{0x80000000, 8}, "the picture is too large"}, {{32769, 1}, "the picture is too large"},
      {{32768, 32768}, "the picture is too large"},  {{8000, 8000}, "the file is incomplete"},
  };
  for (const auto& [size, why] : cases) {
    const auto picture = decodePng(withSize(size.first, size.second));
    ASSERT_FALSE(picture) << size.first << 'x' << size.second;
    EXPECT_EQ(picture.failure().why, why) << size.first << 'x' << size.second;
  }
}

} // namespace
} // namespace vitrelle::host
