// PaletteBench FILE...: the palette of a picture in memory, ours (every pixel, 5 and 256 colours)
// beside libimagequant at its defaults (256 colours, its own choice of pixels).
#include "bench/ReadBytes.h"
#include "bench/Timing.h"
#include "core/colour/ColourMap.h"
#include "host/imaging/PngReader.h"

#include <libimagequant.h>

#include <cstdio>
#include <cstring>
#include <thread>

namespace {

constexpr int rounds = 11;

void quantizeThere(const std::vector<std::uint8_t>& pixels, const vitrelle::PixelSize& size) {
  liq_attr* options = liq_attr_create();
  liq_image* image = liq_image_create_rgba(options, pixels.data(), size.width, size.height, 0);
  liq_result* result = nullptr;
  if (liq_image_quantize(image, options, &result) != LIQ_OK ||
      liq_get_palette(result)->count == 0) {
    std::fprintf(stderr, "libimagequant failed\n");
  }
  liq_result_destroy(result);
  liq_image_destroy(image);
  liq_attr_destroy(options);
}

void quantizeHere(const vitrelle::Bitmap& bitmap, int colours) {
  const auto map = vitrelle::MMCQ::quantize(bitmap, 1, true, colours);
  if (!map || map->paletteColors().empty()) std::fprintf(stderr, "no palette\n");
}

} // namespace

int main(int argumentCount, char** arguments) {
  std::printf("%-24s %9s %9s %9s %7s\n", "ms", "5", "256", "imagequant", "ratio");
  for (int i = 1; i < argumentCount; ++i) {
    const auto picture = vitrelle::host::decodePng(bench::readBytes(arguments[i]));
    if (!picture) {
      std::fprintf(stderr, "%s: %s\n", arguments[i], picture.failure().why.c_str());
      return 1;
    }
    const vitrelle::Bitmap& bitmap = picture->bitmap;
    const auto rowBytes = static_cast<std::size_t>(bitmap.size.width) * 4;
    std::vector<std::uint8_t> packed(rowBytes * static_cast<std::size_t>(bitmap.size.height));
    for (std::int32_t y = 0; y < bitmap.size.height; ++y) {
      std::memcpy(packed.data() + static_cast<std::size_t>(y) * rowBytes, bitmap.row(y), rowBytes);
    }
    // The threads of libimagequant go on spinning when their work is done, on a core that the next
    // one needs; so a rest has its turn too.
    const auto rest = [] { std::this_thread::sleep_for(std::chrono::milliseconds(50)); };
    const auto times = bench::medians(rounds, {[&] { quantizeHere(bitmap, 5); },
                                               [&] { quantizeHere(bitmap, 256); },
                                               [&] { quantizeThere(packed, bitmap.size); }, rest});
    const char* slash = std::strrchr(arguments[i], '/');
    std::printf("%-24s %9.2f %9.2f %9.1f %7.0f\n", slash == nullptr ? arguments[i] : slash + 1,
                times[0], times[1], times[2], times[2] / times[1]);
  }
}
