#include "tests/host/imaging/LibpngPeer.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <random>
#include <stdexcept>

namespace vitrelle::test {

namespace {

[[noreturn]] void fail(png_structp, png_const_charp words) {
  throw std::runtime_error(words);
}
void ignore(png_structp, png_const_charp) {}

} // namespace

Data writeWithLibpng(std::uint32_t width, std::uint32_t height, const PngKind& kind,
                     const std::function<void(png_structp, png_infop)>& more) {
  Data file;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore);
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(
      png, &file,
      [](png_structp writer, png_bytep bytes, std::size_t size) {
        auto* out = static_cast<Data*>(png_get_io_ptr(writer));
        out->insert(out->end(), bytes, bytes + size);
      },
      [](png_structp) {});
  png_set_IHDR(png, info, width, height, kind.bitDepth, kind.colourType,
               kind.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  std::mt19937 random(width * 31 + height);
  if (kind.colourType == PNG_COLOR_TYPE_PALETTE) {
    std::vector<png_color> colours(std::size_t{1} << kind.bitDepth);
    for (png_color& colour : colours) {
      colour = {static_cast<png_byte>(random()), static_cast<png_byte>(random()),
                static_cast<png_byte>(random())};
    }
    png_set_PLTE(png, info, colours.data(), static_cast<int>(colours.size()));
  }
  png_set_filter(png, 0, kind.filters);
  if (more) more(png, info);
  png_write_info(png, info);

  const std::size_t rowBytes = png_get_rowbytes(png, info);
  Data pixels(rowBytes * height);
  // Noise on a slope, so that every filter has something to say.
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    pixels[i] = static_cast<std::uint8_t>(i / 7 + random() % 9);
  }
  std::fill_n(pixels.begin(), std::min<std::size_t>(8, pixels.size()), 0);
  std::vector<png_bytep> rows(height);
  for (std::uint32_t y = 0; y < height; ++y)
    rows[y] = pixels.data() + y * rowBytes;
  constexpr int each[] = {PNG_FILTER_NONE, PNG_FILTER_SUB, PNG_FILTER_UP, PNG_FILTER_AVG,
                          PNG_FILTER_PAETH};
  if (!kind.filterAtRandom) png_write_image(png, rows.data());
  for (std::uint32_t y = 0; kind.filterAtRandom && y < height; ++y) {
    png_set_filter(png, 0, each[random() % std::size(each)]);
    png_write_row(png, rows[y]);
  }
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return file;
}

Data readWithLibpng(std::span<const std::uint8_t> file, PixelSize& size) {
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore);
  png_infop info = png_create_info_struct(png);
  png_set_read_fn(png, &file, [](png_structp reader, png_bytep bytes, std::size_t count) {
    auto* in = static_cast<std::span<const std::uint8_t>*>(png_get_io_ptr(reader));
    if (in->size() < count) png_error(reader, "short");
    std::memcpy(bytes, in->data(), count);
    *in = in->subspan(count);
  });
  png_read_info(png, info);
  png_set_expand(png);
  png_set_scale_16(png);
  png_set_gray_to_rgb(png);
  png_set_add_alpha(png, 255, PNG_FILLER_AFTER);
  png_set_interlace_handling(png);
  png_read_update_info(png, info);
  size = {static_cast<std::int32_t>(png_get_image_width(png, info)),
          static_cast<std::int32_t>(png_get_image_height(png, info))};
  const std::size_t rowBytes = png_get_rowbytes(png, info);
  Data pixels(rowBytes * static_cast<std::size_t>(size.height));
  std::vector<png_bytep> rows;
  for (std::size_t y = 0; y < static_cast<std::size_t>(size.height); ++y) {
    rows.push_back(pixels.data() + y * rowBytes);
  }
  png_read_image(png, rows.data());
  png_read_end(png, nullptr);
  png_destroy_read_struct(&png, &info, nullptr);
  return pixels;
}

Data packedPixels(const Bitmap& bitmap) {
  Data pixels;
  for (std::int32_t y = 0; y < bitmap.size.height; ++y) {
    const auto* row = bitmap.row(y);
    pixels.insert(pixels.end(), row, row + 4 * static_cast<std::size_t>(bitmap.size.width));
  }
  return pixels;
}

Bitmap bitmapOf(PixelSize size, Data pixels) {
  const auto owner = std::make_shared<Data>(std::move(pixels));
  return {.size = size,
          .bytesPerRow = 4 * static_cast<std::size_t>(size.width),
          .pixels = owner->data(),
          .opaque = false,
          .owner = owner};
}

} // namespace vitrelle::test
