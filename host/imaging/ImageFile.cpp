#include "host/imaging/ImageFile.h"

#include "host/files/Descriptor.h"
#include "host/imaging/HeifReader.h"
#include "host/imaging/JpegReader.h"
#include "host/imaging/ParallelWork.h"
#include "host/imaging/PixelBuffer.h"
#include "host/imaging/PngFiles.h"
#include "host/imaging/PngReader.h"
#include "host/imaging/PngWriter.h"
#include "host/imaging/Resize.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

constexpr std::size_t largestFile = std::size_t{512} << 20;

struct FileBytes {
  std::shared_ptr<std::uint8_t> memory;
  std::size_t size = 0;
  std::span<const std::uint8_t> span() const { return {memory.get(), size}; }
};

/// The first bytes of the file, as many as there are up to `most`; nothing when it can't be read.
/// They are read, not mapped: a mapped file that shrinks takes the process with it.
std::optional<FileBytes> readBytes(int file, std::size_t most) {
  FileBytes bytes{allocatePixels(most), 0};
  if (!bytes.memory) return std::nullopt;
  while (bytes.size < most) {
    const ssize_t count = pread(file, bytes.memory.get() + bytes.size, most - bytes.size,
                                static_cast<off_t>(bytes.size));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    bytes.size += static_cast<std::size_t>(count);
  }
  return bytes;
}

struct Format {
  bool (*matches)(std::span<const std::uint8_t>);
  Result<PixelSize> (*size)(std::span<const std::uint8_t>);
  Result<DecodedPicture> (*decode)(std::span<const std::uint8_t>);
  bool sizeIsInHeader; ///< else the whole file must be searched for it
};

Result<PixelSize> readPngSize(std::span<const std::uint8_t> bytes) {
  const Result<PngHeader> header = readPngHeader(bytes);
  if (!header) return header.failure();
  return header->size;
}

constexpr Format formats[] = {
    {isPng, readPngSize, decodePng, true},
    {isJpeg, readJpegSize, decodeJpeg, false},
    {isHeif, readHeifSize, decodeHeif, false},
};

/// A failure in reading a file's content, with the file's name in the place of the format's.
Failure ofFile(const std::string& path, const Failure& failure) {
  return {path, failure.why};
}

/// What is known of a file by its header.
struct KnownFile {
  Descriptor file;
  FileIdentity identity;
  const Format& format;
  PixelSize size;
};

class FileImage final : public ImageSource {
 public:
  FileImage(std::string path, std::shared_ptr<const KnownFile> file)
      : path_(std::move(path)), file_(std::move(file)) {}

  PixelSize size() const override { return file_->size; }
  std::optional<FileIdentity> file() const override { return file_->identity; }
  const ColourProfile& profile() const override {
    static const ColourProfile none;
    const Result<DecodedPicture>& picture = decoded();
    return picture ? picture->profile : none;
  }
  Result<Bitmap> bitmap() const override {
    const Result<DecodedPicture>& picture = decoded();
    if (!picture) return picture.failure();
    return picture->bitmap;
  }
  Result<Data> fileData() const override {
    const auto bytes = readWhole();
    if (!bytes) return Failure{path_, std::strerror(errno)};
    return Data(bytes->span().begin(), bytes->span().end());
  }

 private:
  const Result<DecodedPicture>& decoded() const {
    std::call_once(once_, [this] { decoded_ = decode(); });
    return *decoded_;
  }

  std::optional<FileBytes> readWhole() const {
    return readBytes(file_->file.get(), static_cast<std::size_t>(file_->identity.bytes));
  }

  Result<DecodedPicture> decode() const {
    const auto bytes = readWhole();
    if (!bytes) return Failure{path_, std::strerror(errno)};
    Result<DecodedPicture> picture = file_->format.decode(bytes->span());
    if (!picture) return ofFile(path_, picture.failure());
    // Someone wrote into the file since it was opened, and its size was told to others.
    if (picture->bitmap.size != file_->size)
      return Failure{path_, "the file changed while it was read"};
    return picture;
  }

  std::string path_;
  std::shared_ptr<const KnownFile> file_;
  mutable std::once_flag once_;
  mutable std::optional<Result<DecodedPicture>> decoded_;
};

FileIdentity identityOf(const struct stat& status) {
  return {.device = status.st_dev,
          .inode = status.st_ino,
          .bytes = status.st_size,
          .seconds = status.st_mtim.tv_sec,
          .nanoseconds = status.st_mtim.tv_nsec};
}

Result<std::shared_ptr<const KnownFile>> openPicture(const std::string& path) {
  // Without waiting, should it be a pipe that nobody writes to.
  Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (file.get() < 0 || fstat(file.get(), &status) != 0) return Failure{path, std::strerror(errno)};
  if (!S_ISREG(status.st_mode)) return Failure{path, "not a file"};
  const auto fileBytes = static_cast<std::size_t>(status.st_size);
  if (fileBytes == 0) return Failure{path, "the file is empty"};
  if (fileBytes > largestFile) return Failure{path, "the file is too large"};

  auto bytes = readBytes(file.get(), std::min(fileBytes, pngHeaderBytes));
  if (!bytes) return Failure{path, std::strerror(errno)};
  const auto format =
      std::ranges::find_if(formats, [&](const Format& f) { return f.matches(bytes->span()); });
  if (format == std::end(formats)) return Failure{path, "not a PNG, JPEG or HEIC picture"};
  if (!format->sizeIsInHeader) {
    bytes = readBytes(file.get(), fileBytes);
    if (!bytes) return Failure{path, std::strerror(errno)};
  }
  const Result<PixelSize> size = format->size(bytes->span());
  if (!size) return ofFile(path, size.failure());
  return std::make_shared<const KnownFile>(
      KnownFile{std::move(file), identityOf(status), *format, *size});
}

/// The files that images are held of, by path. They stay open, so no other file can get the inode
/// of one of them.
class KnownFiles final {
 public:
  Result<Image> load(const std::string& path) {
    if (auto known = find(path)) return Image(std::make_shared<FileImage>(path, std::move(known)));
    const auto opened = openPicture(path);
    if (!opened) return opened.failure();
    const std::lock_guard lock(mutex_);
    std::erase_if(files_, [](const auto& entry) { return entry.second.expired(); });
    files_.insert_or_assign(path, *opened);
    return Image(std::make_shared<FileImage>(path, *opened));
  }

 private:
  std::shared_ptr<const KnownFile> find(const std::string& path) {
    std::shared_ptr<const KnownFile> known;
    {
      const std::lock_guard lock(mutex_);
      if (const auto entry = files_.find(path); entry != files_.end()) known = entry->second.lock();
    }
    struct stat status {};
    if (!known || stat(path.c_str(), &status) != 0) return nullptr;
    return identityOf(status) == known->identity ? known : nullptr;
  }

  std::mutex mutex_; ///< pictures are loaded on several threads
  std::map<std::string, std::weak_ptr<const KnownFile>> files_;
};

Status decodeAll(std::span<const Image> images) {
  std::vector<std::optional<Failure>> failures(images.size());
  inParallel(images.size(), [&] {
    return [&](std::size_t index) {
      const Result<Bitmap> bitmap = images[index].bitmap();
      if (!bitmap) failures[index] = bitmap.failure();
    };
  });
  const auto first = std::ranges::find_if(failures, [](const auto& f) { return f.has_value(); });
  if (first == failures.end()) return success();
  return **first;
}

Result<Image> resized(const Image& image, const PixelSize& size) {
  const Result<Bitmap> bitmap = image.bitmap();
  if (!bitmap) return bitmap.failure();
  Result<Bitmap> made = resizeBitmap(*bitmap, size);
  if (!made) return made.failure();
  return Image(*std::move(made), image.profile());
}

Result<Data> pngRepresentation(const Image& image) {
  const Result<Bitmap> bitmap = image.bitmap();
  if (!bitmap) return bitmap.failure();
  PngWriter writer;
  const auto bytes = writer.encode(*bitmap, image.profile());
  if (bytes.empty()) return Failure{"PNG", "not enough memory"};
  return Data(bytes.begin(), bytes.end());
}

} // namespace

Result<Image> loadImageFile(const std::string& path) {
  return KnownFiles().load(path);
}

Images makeImages(const HomeFolder& home) {
  return {.load = [known = std::make_shared<KnownFiles>()](
                      const std::string& path) { return known->load(path); },
          .decode = decodeAll,
          .resized = resized,
          .pngRepresentation = pngRepresentation,
          .writePngFiles =
              [home](std::span<const PngFile> files) { return writePngFiles(home, files); }};
}

} // namespace vitrelle::host
