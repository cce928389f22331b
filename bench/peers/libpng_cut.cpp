// The job with libpng and its defaults.
#include "bench/peers/Job.h"

#include <png.h>

#include <cstdio>
#include <vector>

namespace {

struct Picture {
  png_uint_32 width = 0;
  png_uint_32 height = 0;
  int colourType = 0;
  std::size_t pixelBytes = 0;
  std::vector<png_byte> samples;

  png_byte* at(int x, int y) {
    return samples.data() +
           (static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)) * pixelBytes;
  }
};

// libpng's own error handler prints the message and its jump buffer is not set: it aborts, which is
// all that a benchmark needs.
bool readPicture(const std::string& path, Picture& picture) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return false;
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_read_info(png, info);
  picture.width = png_get_image_width(png, info);
  picture.height = png_get_image_height(png, info);
  picture.colourType = png_get_color_type(png, info);
  const std::size_t rowBytes = png_get_rowbytes(png, info);
  picture.pixelBytes = rowBytes / picture.width;
  picture.samples.resize(rowBytes * picture.height);
  for (png_uint_32 y = 0; y < picture.height; ++y) {
    png_read_row(png, picture.samples.data() + y * rowBytes, nullptr);
  }
  png_read_end(png, nullptr);
  png_destroy_read_struct(&png, &info, nullptr);
  std::fclose(file);
  return true;
}

bool writePart(const std::string& path, Picture& picture, int x, int y, int width, int height) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) return false;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8,
               picture.colourType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
               PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  for (int row = 0; row < height; ++row)
    png_write_row(png, picture.at(x, y + row));
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return std::fclose(file) == 0;
}

bool cut(const std::string& path, const std::string& folder, bool dark) {
  Picture picture;
  if (!readPicture(path, picture)) return false;
  if (!writePart(bench::fileOf(folder, "original", dark), picture, 0, 0,
                 static_cast<int>(picture.width), static_cast<int>(picture.height))) {
    return false;
  }
  for (const bench::Slice& slice : bench::slices) {
    if (!writePart(bench::fileOf(folder, slice.stem, dark), picture, slice.x, slice.y, slice.width,
                   slice.height)) {
      return false;
    }
  }
  return true;
}

} // namespace

int main(int argumentCount, char** arguments) {
  return bench::run(argumentCount, arguments, cut);
}
