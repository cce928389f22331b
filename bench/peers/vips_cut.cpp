// The job with libvips and its defaults. The picture is decoded once, into memory.
#include "bench/peers/Job.h"

#include <vips/vips8>

#include <cstdio>

namespace {

bool cut(const std::string& path, const std::string& folder, bool dark) {
  try {
    const auto picture = vips::VImage::new_from_file(path.c_str()).copy_memory();
    picture.write_to_file(bench::fileOf(folder, "original", dark).c_str());
    for (const bench::Slice& slice : bench::slices) {
      picture.extract_area(slice.x, slice.y, slice.width, slice.height)
          .write_to_file(bench::fileOf(folder, slice.stem, dark).c_str());
    }
    return true;
  } catch (const vips::VError& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return false;
  }
}

} // namespace

int main(int argumentCount, char** arguments) {
  if (VIPS_INIT(arguments[0]) != 0) return 1;
  const int status = bench::run(argumentCount, arguments, cut);
  vips_shutdown();
  return status;
}
