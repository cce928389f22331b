#include "host/imaging/HeifDecoder.h"

#include "host/imaging/IccProfile.h"
#include "host/imaging/PictureBounds.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <libheif/heif.h>

namespace vitrelle::host {

namespace {

Failure refused(const std::string& why) {
  return {"HEIC", why};
}

Failure refused(const std::string& why, const heif_error& error) {
  const std::string_view words(error.message); // more than one line of some
  return refused(why + " (" + std::string(words.substr(0, words.find('\n'))) + ")");
}

template <class Object>
using Owned = std::unique_ptr<Object, void (*)(Object*)>;
using OwnedHandle = std::unique_ptr<const heif_image_handle, void (*)(const heif_image_handle*)>;

/// An opened file and its primary picture.
struct Opened {
  Owned<heif_context> context;
  OwnedHandle handle;
  PixelSize size;
};

/// The part of the stored picture that is shown, before any rotation. A file whose sides are odd
/// is padded at the right and bottom, and crops the padding off in the same breath as it rotates;
/// so the size after all of that, turned back if need be, is the part's size.
PixelSize shownSize(const heif_image_handle* handle) {
  const PixelSize stored{heif_image_handle_get_ispe_width(handle),
                         heif_image_handle_get_ispe_height(handle)};
  const PixelSize shown{heif_image_handle_get_width(handle), heif_image_handle_get_height(handle)};
  const PixelSize turned{shown.height, shown.width};
  const auto fits = [&](PixelSize size) {
    return size.width <= stored.width && size.height <= stored.height;
  };
  const auto padding = [&](PixelSize size) {
    return std::max(stored.width - size.width, stored.height - size.height);
  };
  if (!fits(shown)) return fits(turned) ? turned : stored;
  return fits(turned) && padding(turned) < padding(shown) ? turned : shown;
}

Result<Opened> open(std::span<const std::uint8_t> bytes) {
  Owned<heif_context> context(heif_context_alloc(), heif_context_free);
  if (!context) return refused("not enough memory");
  heif_context_set_maximum_image_size_limit(context.get(), static_cast<int>(mostPixelsOfASide));
  const heif_error read = heif_context_read_from_memory_without_copy(context.get(), bytes.data(),
                                                                     bytes.size(), nullptr);
  if (read.code != heif_error_Ok) {
    return refused("the picture is damaged", read);
  }
  heif_image_handle* primary = nullptr;
  const heif_error found = heif_context_get_primary_image_handle(context.get(), &primary);
  OwnedHandle handle(primary, heif_image_handle_release);
  if (found.code != heif_error_Ok) {
    return refused("the file has no picture", found);
  }
  const std::int64_t width = heif_image_handle_get_ispe_width(primary);
  const std::int64_t height = heif_image_handle_get_ispe_height(primary);
  if (!withinBounds(width, height)) return refused(boundsComplaint(width, height));
  const PixelSize size = shownSize(primary);
  if (!withinBounds(size.width, size.height)) return refused("the picture has no pixels");
  return Opened{std::move(context), std::move(handle), size};
}

/// The same code points for the RGB samples that we made of the picture's.
void readNclx(const heif_image_handle* handle, ColourProfile& profile) {
  heif_color_profile_nclx* nclx = nullptr;
  if (heif_image_handle_get_nclx_color_profile(handle, &nclx).code != heif_error_Ok ||
      nclx == nullptr) {
    return;
  }
  constexpr std::uint8_t rgbMatrix = 0;
  constexpr std::uint8_t fullRange = 1;
  constexpr int unspecified = 2;
  const auto primaries = static_cast<std::uint8_t>(nclx->color_primaries);
  const auto transfer = static_cast<std::uint8_t>(nclx->transfer_characteristics);
  if (primaries != unspecified && transfer != unspecified) {
    profile.cicp = {primaries, transfer, rgbMatrix, fullRange};
  }
  heif_nclx_color_profile_free(nclx);
}

ColourProfile readProfile(const heif_image_handle* handle) {
  ColourProfile profile;
  profile.icc.resize(heif_image_handle_get_raw_color_profile_size(handle));
  if (!profile.icc.empty() &&
      (heif_image_handle_get_raw_color_profile(handle, profile.icc.data()).code != heif_error_Ok ||
       !isIccProfile(profile.icc))) {
    profile.icc.clear();
  }
  if (profile.icc.empty()) readNclx(handle, profile);
  return profile;
}

} // namespace

Result<DecodedPicture> readSizeWithLibheif(std::span<const std::uint8_t> bytes) {
  const Result<Opened> opened = open(bytes);
  if (!opened) return opened.failure();
  DecodedPicture picture;
  picture.bitmap.size = opened->size;
  return picture;
}

Result<DecodedPicture> decodeWithLibheif(std::span<const std::uint8_t> bytes) {
  const Result<Opened> opened = open(bytes);
  if (!opened) return opened.failure();
  const Owned<heif_decoding_options> options(heif_decoding_options_alloc(),
                                             heif_decoding_options_free);
  if (!options) return refused("not enough memory");
  options->ignore_transformations = 1;
  options->convert_hdr_to_8bit = 1;
  options->strict_decoding = 1;
  heif_image* decoded = nullptr;
  const heif_error error = heif_decode_image(opened->handle.get(), &decoded, heif_colorspace_RGB,
                                             heif_chroma_interleaved_RGBA, options.get());
  const std::shared_ptr<const heif_image> image(decoded, heif_image_release);
  if (error.code != heif_error_Ok) {
    return refused("the picture is damaged", error);
  }
  int stride = 0;
  const std::uint8_t* pixels =
      heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
  const PixelSize size = opened->size;
  if (pixels == nullptr || stride < 4 * size.width ||
      heif_image_get_width(decoded, heif_channel_interleaved) < size.width ||
      heif_image_get_height(decoded, heif_channel_interleaved) < size.height) {
    return refused("the picture is incomplete");
  }
  return DecodedPicture{.bitmap = {.size = size,
                                   .bytesPerRow = static_cast<std::size_t>(stride),
                                   .pixels = pixels,
                                   .opaque = false,
                                   .owner = image},
                        .profile = readProfile(opened->handle.get())};
}

} // namespace vitrelle::host
