#include "host/imaging/PngFiles.h"

#include "host/files/PendingFile.h"
#include "host/imaging/ParallelWork.h"
#include "host/imaging/PngWriter.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <mutex>
#include <numeric>
#include <optional>
#include <set>
#include <utility>

#include <sys/statvfs.h>

namespace vitrelle::host {

namespace {

struct EncodedFile {
  PendingFile file;
  std::size_t bytes;
};

/// The writer's until its next call.
using Encoding = std::span<const std::uint8_t>;

Result<Encoding> encode(const PngFile& png, PngWriter& writer) {
  const Result<Bitmap> bitmap = png.image.bitmap();
  if (!bitmap) return bitmap.failure();
  if (bitmap->size == PixelSize{}) return Failure{png.path, "the image has no pixels"};
  const Encoding bytes = writer.encode(*bitmap, png.image.profile());
  if (bytes.empty()) return Failure{png.path, "not enough memory"};
  return bytes;
}

/// Puts written files into place, each as soon as those before it are.
class InOrder final {
 public:
  explicit InOrder(std::span<const PngFile> files) : files_(files), written_(files.size()) {}

  void add(std::size_t index, Result<EncodedFile> file) {
    const std::lock_guard lock(mutex_);
    written_[index] = std::move(file);
    while (results_.size() < written_.size() && written_[results_.size()])
      placeNext();
  }

  /// Takes back what is written and waits for those before it; gives those of which nothing is
  /// known now.
  std::vector<std::size_t> takeBack() {
    std::vector<std::size_t> open;
    for (std::size_t index = results_.size(); index < written_.size(); ++index) {
      auto& file = written_[index];
      if (file && *file) file.reset();
      if (!file) open.push_back(index);
    }
    return open;
  }

  std::vector<Result<std::size_t>> finish() {
    for (const std::string& folder : folders_)
      syncFolder(folder);
    return std::move(results_);
  }

 private:
  void placeNext() {
    const std::size_t index = results_.size();
    Result<EncodedFile> written = *std::exchange(written_[index], std::nullopt);
    if (!written) {
      results_.emplace_back(written.failure());
      return;
    }
    EncodedFile file = *std::move(written);
    const Status moved = file.file.moveIntoPlace();
    if (moved) folders_.insert(folderOf(files_[index].path));
    results_.push_back(moved ? Result<std::size_t>(file.bytes) : moved.failure());
  }

  std::span<const PngFile> files_;
  std::mutex mutex_;
  std::vector<std::optional<Result<EncodedFile>>> written_;
  std::vector<Result<std::size_t>> results_;
  std::set<std::string> folders_;
};

std::int64_t area(const PngFile& file) {
  const PixelSize size = file.image.size();
  return std::int64_t{size.width} * size.height;
}

/// Whether the disk takes all of them, however badly they compress; true when it does not say.
bool hasRoomFor(std::span<const PngFile> files) {
  constexpr std::int64_t bytesOfAPixel = 4;
  constexpr std::int64_t besides = 16 << 10; // the format's own bytes, and the disk's blocks
  struct statvfs disk {};
  if (files.empty()) return true;
  std::string folder = folderOf(files.front().path);
  while (statvfs(folder.c_str(), &disk) != 0) {
    const std::string above = folderOf(folder);
    if (errno != ENOENT || above == folder) return true;
    folder = above;
  }
  std::uint64_t needed = 0;
  for (const PngFile& file : files)
    needed += static_cast<std::uint64_t>(area(file) * bytesOfAPixel + besides);
  return disk.f_bavail >= needed / disk.f_frsize;
}

/// The fast way: several at once, the biggest first. Gives up at the first that can't be written,
/// so that it does not take the room of smaller ones.
void writeBiggestFirst(const HomeFolder& home, std::span<const PngFile> files, InOrder& inOrder) {
  std::vector<std::size_t> biggestFirst(files.size());
  std::iota(biggestFirst.begin(), biggestFirst.end(), std::size_t{0});
  std::ranges::stable_sort(biggestFirst, std::greater(),
                           [&](std::size_t index) { return area(files[index]); });
  std::atomic<bool> gaveUp{false};
  inParallel(files.size(), [&] {
    // Each thread has a writer, whose memory serves one picture after the other.
    return [&, writer = PngWriter()](std::size_t task) mutable {
      if (gaveUp) return;
      const std::size_t index = biggestFirst[task];
      const Result<Encoding> encoding = encode(files[index], writer);
      if (!encoding) return inOrder.add(index, encoding.failure());
      Result<PendingFile> file = PendingFile::write(home, files[index].path, *encoding);
      if (file) return inOrder.add(index, EncodedFile{*std::move(file), encoding->size()});
      gaveUp = true;
    };
  });
}

/// On a disk that is nearly full: as many as there is room for. Each is encoded twice rather than
/// kept, since memory may be short as well.
void writeSmallestFirst(const HomeFolder& home, std::span<const PngFile> files, InOrder& inOrder) {
  std::vector<std::size_t> smallestFirst = inOrder.takeBack();
  PngWriter writer;
  std::vector<std::size_t> sizes(files.size());
  for (const std::size_t index : smallestFirst) {
    const Result<Encoding> encoding = encode(files[index], writer);
    if (encoding) sizes[index] = encoding->size();
  }
  std::ranges::stable_sort(smallestFirst, {}, [&](std::size_t index) { return sizes[index]; });
  for (const std::size_t index : smallestFirst) {
    const Result<Encoding> encoding = encode(files[index], writer);
    if (!encoding) {
      inOrder.add(index, encoding.failure());
      continue;
    }
    Result<PendingFile> file = PendingFile::write(home, files[index].path, *encoding);
    inOrder.add(index, file ? Result<EncodedFile>(EncodedFile{*std::move(file), encoding->size()})
                            : file.failure());
  }
}

} // namespace

std::vector<Result<std::size_t>> writePngFiles(const HomeFolder& home,
                                               std::span<const PngFile> files) {
  InOrder inOrder(files);
  if (hasRoomFor(files)) writeBiggestFirst(home, files, inOrder);
  writeSmallestFirst(home, files, inOrder); // what is left; mostly nothing
  removeAbandonedFiles(home);
  return inOrder.finish();
}

} // namespace vitrelle::host
