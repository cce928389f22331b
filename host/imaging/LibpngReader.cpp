#include "host/imaging/LibpngReader.h"

#include "host/imaging/PixelBuffer.h"

#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <vector>

#include <png.h>

namespace vitrelle::host {

namespace {

/// What libpng's callbacks work on. It has no destructor, so that a jump may pass over it.
struct Reading {
  const std::uint8_t* next;
  std::size_t left;
  char complaint[128];
};

Reading& reading(png_structp png) {
  return *static_cast<Reading*>(png_get_error_ptr(png));
}

void supply(png_structp png, png_bytep out, std::size_t size) {
  auto& from = *static_cast<Reading*>(png_get_io_ptr(png));
  if (size > from.left) png_error(png, "the file is incomplete");
  std::memcpy(out, from.next, size);
  from.next += size;
  from.left -= size;
}

[[noreturn]] void fail(png_structp png, png_const_charp words) {
  std::snprintf(reading(png).complaint, sizeof(Reading::complaint), "%s", words);
  png_longjmp(png, 1);
}

void ignore(png_structp, png_const_charp) {}

/// Asks for 8-bit RGBA rows, whatever the file has.
void askForRgba(png_structp png, png_infop info) {
  png_set_expand(png); // palette, few bits, transparent colour
  png_set_scale_16(png);
  png_set_gray_to_rgb(png);
  png_set_add_alpha(png, 255, PNG_FILLER_AFTER);
  png_set_interlace_handling(png);
  png_read_update_info(png, info);
}

/// Where the rows go: made after the layout is known, by the caller, outside of any jump.
struct Rows {
  png_bytepp pointers;
  std::size_t bytesPerRow;
};

bool readRows(png_structp png, png_infop info, const Rows& rows) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  png_read_info(png, info);
  askForRgba(png, info);
  if (png_get_rowbytes(png, info) != rows.bytesPerRow) png_error(png, "the header is damaged");
  png_read_image(png, rows.pointers);
  return true;
}

} // namespace

Result<Bitmap> decodeWithLibpng(std::span<const std::uint8_t> bytes, PixelSize size) {
  const std::size_t bytesPerRow = static_cast<std::size_t>(size.width) * 4;
  const auto height = static_cast<std::size_t>(size.height);
  const std::shared_ptr<std::uint8_t> pixels = allocatePixels(bytesPerRow * height);
  if (!pixels) return Failure{"PNG", "not enough memory"};
  std::vector<png_bytep> rows(height);
  for (std::size_t y = 0; y < height; ++y)
    rows[y] = pixels.get() + y * bytesPerRow;

  Reading from{.next = bytes.data(), .left = bytes.size(), .complaint = ""};
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &from, fail, ignore);
  png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
  if (info == nullptr) {
    png_destroy_read_struct(&png, nullptr, nullptr);
    return Failure{"PNG", "not enough memory"};
  }
  // Text and other chunks that we don't read may not take memory either.
  png_set_user_limits(png, static_cast<png_uint_32>(size.width),
                      static_cast<png_uint_32>(size.height));
  png_set_chunk_malloc_max(png, png_alloc_size_t{8} << 20);
  png_set_keep_unknown_chunks(png, PNG_HANDLE_CHUNK_NEVER, nullptr, 0);
  png_set_read_fn(png, &from, supply);
  const bool read = readRows(png, info, {rows.data(), bytesPerRow});
  png_destroy_read_struct(&png, &info, nullptr);
  if (!read) return Failure{"PNG", std::string("the picture is damaged (") + from.complaint + ")"};
  return Bitmap{.size = size,
                .bytesPerRow = bytesPerRow,
                .pixels = pixels.get(),
                .opaque = false,
                .owner = pixels};
}

} // namespace vitrelle::host
