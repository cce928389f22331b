// DecodeBench FILE...: a PNG file in memory to RGBA pixels in memory, ours beside libpng, whose
// pixels ours must equal.
#include "bench/ReadBytes.h"
#include "bench/Timing.h"
#include "host/imaging/PngReader.h"

#include <png.h>

#include <cstdio>
#include <cstring>

namespace {

constexpr int rounds = 11;

struct Source {
  const std::uint8_t* next;
};

std::vector<std::uint8_t> decodeThere(const std::vector<std::uint8_t>& bytes) {
  Source source{bytes.data()};
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_read_fn(png, &source, [](png_structp reader, png_bytep to, std::size_t size) {
    auto* from = static_cast<Source*>(png_get_io_ptr(reader));
    std::memcpy(to, from->next, size);
    from->next += size;
  });
  png_read_info(png, info);
  png_set_expand(png);
  png_set_add_alpha(png, 255, PNG_FILLER_AFTER);
  png_read_update_info(png, info);
  const std::size_t rowBytes = png_get_rowbytes(png, info);
  std::vector<std::uint8_t> pixels(rowBytes * png_get_image_height(png, info));
  for (auto* row = pixels.data(); row < pixels.data() + pixels.size(); row += rowBytes) {
    png_read_row(png, row, nullptr);
  }
  png_destroy_read_struct(&png, &info, nullptr);
  return pixels;
}

bool equal(const vitrelle::Bitmap& here, const std::vector<std::uint8_t>& there) {
  const auto rowBytes = static_cast<std::size_t>(here.size.width) * 4;
  if (there.size() != rowBytes * static_cast<std::size_t>(here.size.height)) return false;
  for (std::int32_t y = 0; y < here.size.height; ++y) {
    const auto* row = there.data() + static_cast<std::size_t>(y) * rowBytes;
    if (std::memcmp(here.row(y), row, rowBytes) != 0) return false;
  }
  return true;
}

} // namespace

int main(int argumentCount, char** arguments) {
  std::printf("%-24s %9s %9s %7s\n", "ms", "ours", "libpng", "ratio");
  for (int i = 1; i < argumentCount; ++i) {
    const auto bytes = bench::readBytes(arguments[i]);
    const auto picture = vitrelle::host::decodePng(bytes); // also tells whether it is a PNG at all
    if (!picture || !equal(picture->bitmap, decodeThere(bytes))) {
      std::fprintf(stderr, "%s: ours and libpng's pixels differ\n", arguments[i]);
      return 1;
    }
    const auto times = bench::medians(rounds, {[&] { (void)vitrelle::host::decodePng(bytes); },
                                               [&] { (void)decodeThere(bytes); }});
    const char* slash = std::strrchr(arguments[i], '/');
    std::printf("%-24s %9.1f %9.1f %7.2f\n", slash == nullptr ? arguments[i] : slash + 1, times[0],
                times[1], times[1] / times[0]);
  }
}
