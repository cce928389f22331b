#include "host/imaging/JpegReader.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/IccProfile.h"
#include "host/imaging/PictureBounds.h"
#include "host/imaging/PixelBuffer.h"

#include <array>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <string>

#include <jpeglib.h>

#include <jerror.h>

namespace vitrelle::host {

namespace {

/// libjpeg's error handler with a way back.
struct Errors {
  jpeg_error_mgr manager; // first: libjpeg hands back a pointer to it
  std::jmp_buf back;
  char complaint[JMSG_LENGTH_MAX];
  bool inScan; ///< whether the last marker began a scan, so that pixels follow it
};

[[noreturn]] void fail(j_common_ptr common) {
  auto* errors = reinterpret_cast<Errors*>(common->err);
  common->err->format_message(common, errors->complaint);
  std::longjmp(errors->back, 1);
}

/// Follows the markers, which libjpeg tells as it reads them, through `inScan`.
void noteMarker(Errors& errors) {
  switch (errors.manager.msg_code) {
  case JTRC_SOS:
    errors.inScan = true;
    break;
  case JTRC_DAC:
  case JTRC_DHT:
  case JTRC_DQT:
  case JTRC_DRI:
  case JTRC_MISC_MARKER:
    errors.inScan = false;
    break;
  default:
    break;
  }
}

/// Warnings mean damaged pixels, so they count as errors, but for stray bytes between two markers:
/// those no pixel comes from. Stray bytes behind a scan were pixels that lost their way.
void hear(j_common_ptr common, int level) {
  auto& errors = *reinterpret_cast<Errors*>(common->err);
  if (level >= 0) return noteMarker(errors);
  if (errors.manager.msg_code != JWRN_EXTRANEOUS_DATA || errors.inScan) fail(common);
}

void ignore(j_common_ptr) {}

/// A small file can ask for any number of passes over a large picture; cameras make about ten.
void limitScans(j_common_ptr common) {
  constexpr int mostScans = 200;
  if (reinterpret_cast<j_decompress_ptr>(common)->input_scan_number > mostScans) {
    auto* errors = reinterpret_cast<Errors*>(common->err);
    std::snprintf(errors->complaint, sizeof errors->complaint, "too many scans");
    std::longjmp(errors->back, 1);
  }
}

/// One decompression. Its steps give false when libjpeg complained.
class Decompression final {
 public:
  explicit Decompression(std::span<const std::uint8_t> bytes) : bytes_(bytes) {
    info_.err = jpeg_std_error(&errors_.manager);
    errors_.manager.error_exit = fail;
    errors_.manager.emit_message = hear;
    errors_.manager.output_message = ignore;
  }
  ~Decompression() { jpeg_destroy_decompress(&info_); }
  Decompression(const Decompression&) = delete;
  Decompression& operator=(const Decompression&) = delete;

  bool readHeader() {
    if (setjmp(errors_.back) != 0) return false;
    jpeg_create_decompress(&info_);
    progress_.progress_monitor = limitScans;
    info_.progress = &progress_;
    jpeg_mem_src(&info_, bytes_.data(), bytes_.size());
    jpeg_read_header(&info_, TRUE);
    return true;
  }

  std::int64_t width() const { return info_.image_width; }
  std::int64_t height() const { return info_.image_height; }

  /// CMYK has no conversion in libjpeg: its four samples come as they are.
  bool isCmyk() const {
    return info_.jpeg_color_space == JCS_CMYK || info_.jpeg_color_space == JCS_YCCK;
  }
  bool isInverted() const { return info_.saw_Adobe_marker != 0; }

  bool readPixels(std::uint8_t* rgba, std::size_t bytesPerRow) {
    if (setjmp(errors_.back) != 0) return false;
    info_.out_color_space = isCmyk() ? JCS_CMYK : JCS_EXT_RGBA;
    info_.dct_method = JDCT_ISLOW;
    jpeg_start_decompress(&info_);
    while (info_.output_scanline < info_.output_height) {
      JSAMPROW row = rgba + info_.output_scanline * bytesPerRow;
      jpeg_read_scanlines(&info_, &row, 1);
    }
    jpeg_finish_decompress(&info_);
    return true;
  }

  Failure failure() const {
    return {"JPEG", std::string("the picture is damaged (") + errors_.complaint + ")"};
  }

 private:
  std::span<const std::uint8_t> bytes_;
  jpeg_decompress_struct info_{};
  jpeg_progress_mgr progress_{};
  Errors errors_{};
};

/// The ICC profile, whose numbered parts lie in segments before the pixels. libjpeg would keep all
/// segments of that kind in a list that it walks through for each: some minutes for a megabyte.
Data readIcc(std::span<const std::uint8_t> file) {
  constexpr std::uint8_t startOfScan = 0xDA;
  constexpr std::uint8_t app2 = 0xE2;
  constexpr char name[] = "ICC_PROFILE";                  // its zero included
  std::array<std::span<const std::uint8_t>, 256> parts{}; // by their numbers, from 1
  std::size_t partCount = 0;
  std::size_t at = 2;
  while (at + 4 <= file.size() && file[at] == 0xFF && file[at + 1] != startOfScan) {
    if (file[at + 1] == 0xFF) { // a filling byte
      ++at;
      continue;
    }
    const std::size_t length = readBigEndian16(&file[at + 2]); // its own two bytes included
    if (length < 2 || length > file.size() - at - 2) break;
    const auto content = file.subspan(at + 4, length - 2);
    if (file[at + 1] == app2 && content.size() >= sizeof name + 2 &&
        std::memcmp(content.data(), name, sizeof name) == 0) {
      const std::size_t number = content[sizeof name];
      const std::size_t of = content[sizeof name + 1];
      const bool fits = number >= 1 && number <= of && (partCount == 0 || partCount == of);
      if (!fits || parts[number].data() != nullptr) return {};
      parts[number] = content.subspan(sizeof name + 2);
      partCount = of;
    }
    at += 2 + length;
  }
  Data profile;
  for (const auto& part : std::span(parts).subspan(1, partCount)) {
    if (part.data() == nullptr) return {};
    profile.insert(profile.end(), part.begin(), part.end());
  }
  return isIccProfile(profile) ? profile : Data();
}

/// Without a colour-managed conversion, the plain one. Adobe's files hold the inks inverted.
void convertCmyk(std::uint8_t* rgba, std::size_t pixels, bool inverted) {
  for (std::size_t i = 0; i < pixels; ++i, rgba += 4) {
    const unsigned flip = inverted ? 0 : 255;
    const unsigned paper = rgba[3] ^ flip;
    for (std::size_t ink = 0; ink < 3; ++ink) {
      rgba[ink] = static_cast<std::uint8_t>(((rgba[ink] ^ flip) * paper + 127) / 255);
    }
    rgba[3] = 255;
  }
}

Result<PixelSize> boundedSize(const Decompression& jpeg) {
  if (!withinBounds(jpeg.width(), jpeg.height())) {
    return Failure{"JPEG", boundsComplaint(jpeg.width(), jpeg.height())};
  }
  return PixelSize{static_cast<std::int32_t>(jpeg.width()),
                   static_cast<std::int32_t>(jpeg.height())};
}

} // namespace

bool isJpeg(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= 3 && bytes[0] == 0xFF && bytes[1] == 0xD8 && bytes[2] == 0xFF;
}

Result<PixelSize> readJpegSize(std::span<const std::uint8_t> bytes) {
  Decompression jpeg(bytes);
  if (!jpeg.readHeader()) return jpeg.failure();
  return boundedSize(jpeg);
}

Result<DecodedPicture> decodeJpeg(std::span<const std::uint8_t> bytes) {
  Decompression jpeg(bytes);
  if (!jpeg.readHeader()) return jpeg.failure();
  const Result<PixelSize> size = boundedSize(jpeg);
  if (!size) return size.failure();

  const std::size_t bytesPerRow = static_cast<std::size_t>(size->width) * 4;
  const auto height = static_cast<std::size_t>(size->height);
  const std::shared_ptr<std::uint8_t> pixels = allocatePixels(bytesPerRow * height);
  if (!pixels) return Failure{"JPEG", "not enough memory"};
  ColourProfile profile;
  profile.icc = readIcc(bytes);
  if (!jpeg.readPixels(pixels.get(), bytesPerRow)) return jpeg.failure();
  if (jpeg.isCmyk()) convertCmyk(pixels.get(), bytesPerRow * height / 4, jpeg.isInverted());
  return DecodedPicture{.bitmap = {.size = *size,
                                   .bytesPerRow = bytesPerRow,
                                   .pixels = pixels.get(),
                                   .opaque = true,
                                   .owner = pixels},
                        .profile = std::move(profile)};
}

} // namespace vitrelle::host
