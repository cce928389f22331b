#include "host/imaging/PngFiles.h"

#include "host/files/PendingFile.h"
#include "host/imaging/ParallelWork.h"
#include "host/imaging/PngWriter.h"

#include <algorithm>
#include <mutex>
#include <numeric>
#include <optional>
#include <set>
#include <utility>

namespace vitrelle::host {

namespace {

struct EncodedFile {
  PendingFile file;
  std::size_t bytes;
};

Result<EncodedFile> encode(const HomeFolder& home, const PngFile& png, PngWriter& writer) {
  const Result<Bitmap> bitmap = png.image.bitmap();
  if (!bitmap) return bitmap.failure();
  if (bitmap->size == PixelSize{}) return Failure{png.path, "the image has no pixels"};
  const std::span<const std::uint8_t> bytes = writer.encode(*bitmap, png.image.profile());
  if (bytes.empty()) return Failure{png.path, "not enough memory"};
  Result<PendingFile> file = PendingFile::write(home, png.path, bytes);
  if (!file) return file.failure();
  return EncodedFile{*std::move(file), bytes.size()};
}

/// Puts encoded files into place, each as soon as those before it are.
class InOrder final {
 public:
  explicit InOrder(std::span<const PngFile> files) : files_(files), encoded_(files.size()) {}

  void add(std::size_t index, Result<EncodedFile> encoded) {
    const std::lock_guard lock(mutex_);
    encoded_[index] = std::move(encoded);
    while (results_.size() < encoded_.size() && encoded_[results_.size()])
      placeNext();
  }

  std::vector<Result<std::size_t>> finish() {
    for (const std::string& folder : folders_)
      syncFolder(folder);
    return std::move(results_);
  }

 private:
  void placeNext() {
    const std::size_t index = results_.size();
    Result<EncodedFile> encoded = *std::exchange(encoded_[index], std::nullopt);
    if (!encoded) {
      results_.emplace_back(encoded.failure());
      return;
    }
    EncodedFile file = *std::move(encoded);
    const Status moved = file.file.moveIntoPlace();
    if (moved) folders_.insert(folderOf(files_[index].path));
    results_.push_back(moved ? Result<std::size_t>(file.bytes) : moved.failure());
  }

  std::span<const PngFile> files_;
  std::mutex mutex_;
  std::vector<std::optional<Result<EncodedFile>>> encoded_;
  std::vector<Result<std::size_t>> results_;
  std::set<std::string> folders_;
};

std::int64_t area(const PngFile& file) {
  const PixelSize size = file.image.size();
  return std::int64_t{size.width} * size.height;
}

} // namespace

std::vector<Result<std::size_t>> writePngFiles(const HomeFolder& home,
                                               std::span<const PngFile> files) {
  std::vector<std::size_t> biggestFirst(files.size());
  std::iota(biggestFirst.begin(), biggestFirst.end(), std::size_t{0});
  std::ranges::stable_sort(biggestFirst, std::greater(),
                           [&](std::size_t index) { return area(files[index]); });

  InOrder inOrder(files);
  inParallel(files.size(), [&] {
    // Each thread has a writer, whose memory serves one picture after the other.
    return [&, writer = PngWriter()](std::size_t task) mutable {
      const std::size_t index = biggestFirst[task];
      inOrder.add(index, encode(home, files[index], writer));
    };
  });
  removeAbandonedFiles(home);
  return inOrder.finish();
}

} // namespace vitrelle::host
