#include "host/imaging/LibpngReader.h"

#include "host/imaging/PixelBuffer.h"
#include "host/imaging/PngChunks.h"
#include "host/imaging/PngFormat.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstring>

#include <png.h>

namespace vitrelle::host {

namespace {

/// What libpng's callbacks work on. It has no destructor, so that a jump may pass over it.
struct Reading {
  PngChunks chunks;
  std::span<const std::uint8_t> next; ///< to be read before the chunks that follow
  std::size_t allowance;              ///< bytes of chunks' data that may be read yet
  char complaint[128] = "";
};

/// What is read of a row's data, or before the first row, beyond its samples. Behind the last row
/// libpng inflates all that is left, which can be a thousand times what it reads.
constexpr std::size_t allowanceBeyondRow = std::size_t{64} << 10;

Reading& reading(png_structp png) {
  return *static_cast<Reading*>(png_get_error_ptr(png));
}

/// libpng reads and inflates all that it is given, however little of it is asked for.
bool concernsPixels(const PngChunk& chunk) {
  constexpr std::uint32_t types[] = {png::IHDR, png::PLTE, png::tRNS, png::IEND};
  return chunk.type == png::IDAT ? !chunk.data.empty() : std::ranges::count(types, chunk.type) != 0;
}

void supply(png_structp png, png_bytep out, std::size_t size) {
  auto& from = *static_cast<Reading*>(png_get_io_ptr(png));
  if (size > from.allowance) png_error(png, "more follows than the pixels");
  from.allowance -= size;
  while (size > 0) {
    while (from.next.empty()) {
      const auto chunk = from.chunks.next();
      if (!chunk) png_error(png, "the file is incomplete");
      if (!concernsPixels(*chunk)) continue;
      from.next = bytesOf(*chunk);
      from.allowance += from.next.size() - chunk->data.size();
    }
    const std::size_t count = std::min(size, from.next.size());
    std::memcpy(out, from.next.data(), count);
    from.next = from.next.subspan(count);
    out += count;
    size -= count;
  }
}

[[noreturn]] void fail(png_structp png, png_const_charp words) {
  std::snprintf(reading(png).complaint, sizeof(Reading::complaint), "%s", words);
  png_longjmp(png, 1);
}

void ignore(png_structp, png_const_charp) {}

/// Asks for 8-bit RGBA rows, whatever the file has. Gives how often they are gone through.
int askForRgba(png_structp png, png_infop info) {
  png_set_expand(png); // palette, few bits, transparent colour
  png_set_scale_16(png);
  png_set_gray_to_rgb(png);
  png_set_add_alpha(png, 255, PNG_FILLER_AFTER);
  const int passes = png_set_interlace_handling(png);
  png_read_update_info(png, info);
  return passes;
}

/// Into memory of the caller, who owns it outside of any jump.
bool readRows(png_structp png, png_infop info, PixelSize size, std::uint8_t* pixels) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  const std::size_t bytesPerRow = static_cast<std::size_t>(size.width) * 4;
  png_set_user_limits(png, static_cast<png_uint_32>(size.width),
                      static_cast<png_uint_32>(size.height));
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
  png_set_crc_action(png, PNG_CRC_QUIET_USE, PNG_CRC_QUIET_USE);
  png_set_option(png, PNG_IGNORE_ADLER32, PNG_OPTION_ON);
#endif
  png_read_info(png, info);
  const int passes = askForRgba(png, info);
  if (png_get_rowbytes(png, info) != bytesPerRow) png_error(png, "the header is damaged");
  for (int pass = 0; pass < passes; ++pass) {
    for (std::int32_t y = 0; y < size.height; ++y) {
      reading(png).allowance = 2 * bytesPerRow + allowanceBeyondRow; // samples may have 16 bits
      png_read_row(png, pixels + static_cast<std::size_t>(y) * bytesPerRow, nullptr);
    }
  }
  return true;
}

} // namespace

Result<Bitmap> decodeWithLibpng(std::span<const std::uint8_t> bytes, PixelSize size) {
  const std::size_t bytesPerRow = static_cast<std::size_t>(size.width) * 4;
  const auto height = static_cast<std::size_t>(size.height);
  const std::shared_ptr<std::uint8_t> pixels = allocatePixels(bytesPerRow * height);
  if (!pixels) return Failure{"PNG", "not enough memory"};

  Reading from{.chunks = PngChunks(bytes), .next = png::signature, .allowance = allowanceBeyondRow};
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &from, fail, ignore);
  png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
  if (info == nullptr) {
    png_destroy_read_struct(&png, nullptr, nullptr);
    return Failure{"PNG", "not enough memory"};
  }
  png_set_read_fn(png, &from, supply);
  const bool read = readRows(png, info, size, pixels.get());
  png_destroy_read_struct(&png, &info, nullptr);
  if (!read) return Failure{"PNG", std::string("the picture is damaged (") + from.complaint + ")"};
  return Bitmap{.size = size,
                .bytesPerRow = bytesPerRow,
                .pixels = pixels.get(),
                .opaque = false,
                .owner = pixels};
}

} // namespace vitrelle::host
