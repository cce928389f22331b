// ResizeBench FILE...: the pixels of a PNG file to a picture 800 wide and to one of twice the
// width, ours beside Qt's smooth scaling, which looks at fewer of them.
#include "bench/ReadBytes.h"
#include "bench/Timing.h"
#include "host/imaging/PngReader.h"
#include "host/imaging/Resize.h"

#include <QImage>

#include <cstdio>
#include <cstring>

namespace {

constexpr int rounds = 7;

void compare(const char* name, const vitrelle::Bitmap& source, std::int32_t width) {
  const vitrelle::PixelSize size{width, width * source.size.height / source.size.width};
  const QImage there(source.pixels, source.size.width, source.size.height,
                     static_cast<qsizetype>(source.bytesPerRow), QImage::Format_RGBA8888);
  const auto times =
      bench::medians(rounds, {[&] { (void)vitrelle::host::resizeBitmap(source, size); },
                              [&] {
                                (void)there.scaled(size.width, size.height, Qt::IgnoreAspectRatio,
                                                   Qt::SmoothTransformation);
                              }});
  std::printf("%-24s %5d x %-5d %9.1f %9.1f %7.2f\n", name, size.width, size.height, times[0],
              times[1], times[1] / times[0]);
}

} // namespace

int main(int argumentCount, char** arguments) {
  std::printf("%-24s %-13s %9s %9s %7s\n", "ms", "to", "ours", "qt", "ratio");
  for (int i = 1; i < argumentCount; ++i) {
    const auto picture = vitrelle::host::decodePng(bench::readBytes(arguments[i]));
    if (!picture) {
      std::fprintf(stderr, "%s: %s\n", arguments[i], picture.failure().why.c_str());
      return 1;
    }
    const char* slash = std::strrchr(arguments[i], '/');
    const char* name = slash == nullptr ? arguments[i] : slash + 1;
    compare(name, picture->bitmap, 800);
    compare(name, picture->bitmap, picture->bitmap.size.width * 2);
  }
}
