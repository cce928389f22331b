#include "host/imaging/JpegReader.h"

#include "host/imaging/BigEndian.h"
#include "tests/host/imaging/LibpngPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>

#include <jpeglib.h>

namespace vitrelle::host {
namespace {

struct JpegKind {
  J_COLOR_SPACE colours = JCS_RGB;
  bool progressive = false;
  bool orientation = false; ///< with a flag that asks for a quarter turn
  Data icc = {};
};

/// A smooth picture of 24 by 16 pixels.
Data writeJpeg(const JpegKind& kind) {
  jpeg_compress_struct info{};
  jpeg_error_mgr errors{};
  info.err = jpeg_std_error(&errors);
  jpeg_create_compress(&info);
  unsigned char* bytes = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&info, &bytes, &size);
  info.image_width = 24;
  info.image_height = 16;
  info.in_color_space = kind.colours;
  info.input_components = kind.colours == JCS_GRAYSCALE ? 1 : kind.colours == JCS_CMYK ? 4 : 3;
  jpeg_set_defaults(&info);
  jpeg_set_quality(&info, 95, TRUE);
  if (kind.progressive) jpeg_simple_progression(&info);
  jpeg_start_compress(&info, TRUE);
  if (kind.orientation) {
    const JOCTET exif[] = {'E',  'x', 'i', 'f', 0, 0, 'I', 'I', 42, 0, 8, 0, 0, 0, 1, 0,
                           0x12, 1,   3,   0,   1, 0, 0,   0,   6,  0, 0, 0, 0, 0, 0, 0};
    jpeg_write_marker(&info, JPEG_APP0 + 1, exif, sizeof exif);
  }
  if (!kind.icc.empty()) {
    jpeg_write_icc_profile(&info, kind.icc.data(), static_cast<unsigned>(kind.icc.size()));
  }
  for (int y = 0; y < 16; ++y) {
    JSAMPLE row[24 * 4];
    for (int i = 0; i < 24 * info.input_components; ++i) {
      row[i] = static_cast<JSAMPLE>(40 + 5 * (i / info.input_components) + 3 * y);
    }
    JSAMPROW pointer = row;
    jpeg_write_scanlines(&info, &pointer, 1);
  }
  jpeg_finish_compress(&info);
  Data file(bytes, bytes + size);
  std::free(bytes);
  jpeg_destroy_compress(&info);
  return file;
}

TEST(JpegReader, everyKind_isDecodedAsItIsStored) {
  for (const JpegKind& kind : {JpegKind{}, JpegKind{.progressive = true},
                               JpegKind{.colours = JCS_GRAYSCALE}, JpegKind{.orientation = true}}) {
    const Data file = writeJpeg(kind);
    ASSERT_TRUE(isJpeg(file));
    EXPECT_EQ(readJpegSize(file).value(), (PixelSize{24, 16}));
    const auto picture = decodeJpeg(file);
    ASSERT_TRUE(picture) << picture.failure().why;
    for (const auto& [x, y] : {std::pair(0, 0), std::pair(23, 0), std::pair(0, 15)}) {
      const std::uint8_t* pixel = picture->bitmap.row(y) + 4 * x;
      for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(pixel[i], 40 + 5 * x + 3 * y, 6) << x << ',' << y;
      EXPECT_EQ(pixel[3], 255);
    }
  }
}

TEST(JpegReader, cmyk_becomesRgb) {
  const auto picture = decodeJpeg(writeJpeg({.colours = JCS_CMYK}));
  ASSERT_TRUE(picture) << picture.failure().why;
  EXPECT_EQ(picture->bitmap.row(0)[3], 255);
  EXPECT_NE(picture->bitmap.row(0)[0], picture->bitmap.row(15)[92]);
}

TEST(JpegReader, iccProfile_isCarriedIfSound) {
  for (const std::uint32_t size : {400U, 65'519U, 65'520U, 200'000U}) { // of 1, 1, 2 and 4 parts
    Data icc(size);
    writeBigEndian32(icc.data(), size);
    std::copy_n("RGB ", 4, icc.begin() + 16);
    std::copy_n("acsp", 4, icc.begin() + 36);
    icc.back() = 9;
    Data file = writeJpeg({.icc = icc});
    EXPECT_EQ(decodeJpeg(file).value().profile.icc, icc) << size;
    constexpr std::string_view name = "ICC_PROFILE";
    const auto last = std::find_end(file.begin(), file.end(), name.begin(), name.end());
    last[12] = 9; // the part's number
    EXPECT_TRUE(decodeJpeg(file).value().profile.icc.empty()) << size;
    icc[36] = 'x';
    EXPECT_TRUE(decodeJpeg(writeJpeg({.icc = icc})).value().profile.icc.empty()) << size;
  }
}

TEST(JpegReader, manySegments_takeNoTime) {
  Data file = writeJpeg({});
  const std::uint8_t empty[] = {0xFF, 0xE2, 0, 2};
  Data segments;
  for (int i = 0; i < 200'000; ++i)
    segments.insert(segments.end(), std::begin(empty), std::end(empty));
  segments.insert(segments.end(), 1000, 0xFF); // which may fill the room between two
  file.insert(file.begin() + 2, segments.begin(), segments.end());
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(decodeJpeg(file));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST(JpegReader, incompleteFile_isRefusedAtEveryLength) {
  testing::internal::CaptureStderr();
  for (const bool progressive : {false, true}) {
    const Data file = writeJpeg({.progressive = progressive});
    for (std::size_t length = 0; length + 2 < file.size(); length += 7) {
      const auto start = std::span(file).first(length);
      EXPECT_FALSE(decodeJpeg(start)) << length << " of " << file.size();
    }
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "of the library's own";
}

/// Where the nth marker of a kind is, from 0; the end of the file when there are fewer.
std::size_t findMarker(const Data& file, std::uint8_t kind, int nth) {
  for (std::size_t i = 2; i + 1 < file.size(); ++i) {
    if (file[i] == 0xFF && file[i + 1] == kind && nth-- == 0) return i;
  }
  return file.size();
}

TEST(JpegReader, strayBytesBetweenMarkers_areSkippedButNotBehindPixels) {
  constexpr std::uint8_t quantisation = 0xDB;
  constexpr std::uint8_t huffman = 0xC4;
  constexpr std::uint8_t startOfScan = 0xDA;
  constexpr std::uint8_t endOfImage = 0xD9;
  // More than the decoder reads ahead, which it never misses.
  const Data stray(20, 0x47);
  const auto strayBefore = [&](Data file, std::uint8_t marker, int nth) {
    const std::size_t place = findMarker(file, marker, nth);
    EXPECT_LT(place, file.size());
    file.insert(file.begin() + static_cast<std::ptrdiff_t>(place), stray.begin(), stray.end());
    return file;
  };
  for (const bool progressive : {false, true}) {
    const Data file = writeJpeg({.progressive = progressive});
    const auto plain = decodeJpeg(file);
    for (const std::uint8_t marker : {quantisation, huffman, startOfScan}) {
      const auto picture = decodeJpeg(strayBefore(file, marker, 0));
      ASSERT_TRUE(picture) << int{marker} << ' ' << picture.failure().why;
      EXPECT_EQ(picture->bitmap.row(9)[50], plain->bitmap.row(9)[50]);
    }
    EXPECT_FALSE(decodeJpeg(strayBefore(file, endOfImage, 0)));
  }
  // A later scan's table follows the pixels of the scan before, its start follows that table.
  const Data scans = writeJpeg({.progressive = true});
  EXPECT_TRUE(decodeJpeg(strayBefore(scans, startOfScan, 1)));
  EXPECT_FALSE(decodeJpeg(strayBefore(scans, huffman, 2)));
}

} // namespace
} // namespace vitrelle::host
