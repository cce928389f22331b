// The job with Qt's QImage and its defaults.
#include "bench/peers/Job.h"

#include <QImage>
#include <QString>

namespace {

bool cut(const std::string& path, const std::string& folder, bool dark) {
  const QImage picture(QString::fromStdString(path));
  const auto save = [&](const QImage& image, const char* stem) {
    return image.save(QString::fromStdString(bench::fileOf(folder, stem, dark)));
  };
  if (picture.isNull() || !save(picture, "original")) return false;
  for (const bench::Slice& slice : bench::slices) {
    if (!save(picture.copy(slice.x, slice.y, slice.width, slice.height), slice.stem)) return false;
  }
  return true;
}

} // namespace

int main(int argumentCount, char** arguments) {
  return bench::run(argumentCount, arguments, cut);
}
