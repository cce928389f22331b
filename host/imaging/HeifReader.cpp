#include "host/imaging/HeifReader.h"

#include "host/imaging/IccProfile.h"
#include "host/imaging/IsolatedDecoder.h"
#include "host/imaging/PictureBounds.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <libheif/heif.h>

namespace vitrelle::host {

namespace {

Failure refused(const std::string& why) {
  return {"HEIC", why};
}

/// The functions of libheif that we call.
struct Library {
  decltype(&heif_context_alloc) contextAlloc;
  decltype(&heif_context_free) contextFree;
  decltype(&heif_context_read_from_memory_without_copy) contextRead;
  decltype(&heif_context_get_primary_image_handle) primaryHandle;
  decltype(&heif_context_set_maximum_image_size_limit) limitSize;
  decltype(&heif_image_handle_release) handleRelease;
  decltype(&heif_image_handle_get_width) width;
  decltype(&heif_image_handle_get_height) height;
  decltype(&heif_image_handle_get_ispe_width) storedWidth;
  decltype(&heif_image_handle_get_ispe_height) storedHeight;
  decltype(&heif_image_handle_get_raw_color_profile_size) iccSize;
  decltype(&heif_image_handle_get_raw_color_profile) icc;
  decltype(&heif_image_handle_get_nclx_color_profile) nclx;
  decltype(&heif_nclx_color_profile_free) nclxFree;
  decltype(&heif_decoding_options_alloc) optionsAlloc;
  decltype(&heif_decoding_options_free) optionsFree;
  decltype(&heif_decode_image) decode;
  decltype(&heif_image_release) imageRelease;
  decltype(&heif_image_get_width) imageWidth;
  decltype(&heif_image_get_height) imageHeight;
  decltype(&heif_image_get_plane_readonly) plane;
};

/// Null when libheif is not installed.
const Library* library() {
  static const auto loaded = []() -> std::unique_ptr<const Library> {
    void* handle = dlopen("libheif.so.1", RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) return nullptr;
    auto functions = std::make_unique<Library>();
    bool complete = true;
    const auto find = [&]<class Function>(Function& function, const char* name) {
      function = reinterpret_cast<Function>(dlsym(handle, name));
      complete = complete && function != nullptr;
    };
    find(functions->contextAlloc, "heif_context_alloc");
    find(functions->contextFree, "heif_context_free");
    find(functions->contextRead, "heif_context_read_from_memory_without_copy");
    find(functions->primaryHandle, "heif_context_get_primary_image_handle");
    find(functions->limitSize, "heif_context_set_maximum_image_size_limit");
    find(functions->handleRelease, "heif_image_handle_release");
    find(functions->width, "heif_image_handle_get_width");
    find(functions->height, "heif_image_handle_get_height");
    find(functions->storedWidth, "heif_image_handle_get_ispe_width");
    find(functions->storedHeight, "heif_image_handle_get_ispe_height");
    find(functions->iccSize, "heif_image_handle_get_raw_color_profile_size");
    find(functions->icc, "heif_image_handle_get_raw_color_profile");
    find(functions->nclx, "heif_image_handle_get_nclx_color_profile");
    find(functions->nclxFree, "heif_nclx_color_profile_free");
    find(functions->optionsAlloc, "heif_decoding_options_alloc");
    find(functions->optionsFree, "heif_decoding_options_free");
    find(functions->decode, "heif_decode_image");
    find(functions->imageRelease, "heif_image_release");
    find(functions->imageWidth, "heif_image_get_width");
    find(functions->imageHeight, "heif_image_get_height");
    find(functions->plane, "heif_image_get_plane_readonly");
    return complete ? std::move(functions) : nullptr;
  }();
  return loaded.get();
}

template <class Object>
using Owned = std::unique_ptr<Object, void (*)(Object*)>;
using OwnedHandle = std::unique_ptr<const heif_image_handle, void (*)(const heif_image_handle*)>;

/// An opened file and its primary picture.
struct Opened {
  const Library* heif;
  Owned<heif_context> context;
  OwnedHandle handle;
  PixelSize size;
};

/// The part of the stored picture that is shown, before any rotation. A file whose sides are odd
/// is padded at the right and bottom, and crops the padding off in the same breath as it rotates;
/// so the size after all of that, turned back if need be, is the part's size.
PixelSize shownSize(const Library& heif, const heif_image_handle* handle) {
  const PixelSize stored{heif.storedWidth(handle), heif.storedHeight(handle)};
  const PixelSize shown{heif.width(handle), heif.height(handle)};
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
  const Library* heif = library();
  if (heif == nullptr) return refused("libheif is not installed, so HEIC can't be read");
  Owned<heif_context> context(heif->contextAlloc(), heif->contextFree);
  if (!context) return refused("not enough memory");
  heif->limitSize(context.get(), static_cast<int>(mostPixelsOfASide));
  const heif_error read = heif->contextRead(context.get(), bytes.data(), bytes.size(), nullptr);
  if (read.code != heif_error_Ok) {
    return refused(std::string("the picture is damaged (") + read.message + ")");
  }
  heif_image_handle* primary = nullptr;
  const heif_error found = heif->primaryHandle(context.get(), &primary);
  OwnedHandle handle(primary, heif->handleRelease);
  if (found.code != heif_error_Ok) {
    return refused(std::string("the file has no picture (") + found.message + ")");
  }
  const std::int64_t width = heif->storedWidth(primary);
  const std::int64_t height = heif->storedHeight(primary);
  if (!withinBounds(width, height)) return refused(boundsComplaint(width, height));
  const PixelSize size = shownSize(*heif, primary);
  if (!withinBounds(size.width, size.height)) return refused("the picture has no pixels");
  return Opened{heif, std::move(context), std::move(handle), size};
}

/// The same code points for the RGB samples that we made of the picture's.
void readNclx(const Opened& opened, ColourProfile& profile) {
  heif_color_profile_nclx* nclx = nullptr;
  if (opened.heif->nclx(opened.handle.get(), &nclx).code != heif_error_Ok || nclx == nullptr)
    return;
  constexpr std::uint8_t rgbMatrix = 0;
  constexpr std::uint8_t fullRange = 1;
  constexpr int unspecified = 2;
  const auto primaries = static_cast<std::uint8_t>(nclx->color_primaries);
  const auto transfer = static_cast<std::uint8_t>(nclx->transfer_characteristics);
  if (primaries != unspecified && transfer != unspecified) {
    profile.cicp = {primaries, transfer, rgbMatrix, fullRange};
  }
  opened.heif->nclxFree(nclx);
}

ColourProfile readProfile(const Opened& opened) {
  ColourProfile profile;
  profile.icc.resize(opened.heif->iccSize(opened.handle.get()));
  if (!profile.icc.empty() &&
      (opened.heif->icc(opened.handle.get(), profile.icc.data()).code != heif_error_Ok ||
       !isIccProfile(profile.icc))) {
    profile.icc.clear();
  }
  if (profile.icc.empty()) readNclx(opened, profile);
  return profile;
}

/// The picture without its pixels.
Result<DecodedPicture> readSize(std::span<const std::uint8_t> bytes) {
  const Result<Opened> opened = open(bytes);
  if (!opened) return opened.failure();
  DecodedPicture picture;
  picture.bitmap.size = opened->size;
  return picture;
}

Result<DecodedPicture> decode(std::span<const std::uint8_t> bytes) {
  const Result<Opened> opened = open(bytes);
  if (!opened) return opened.failure();
  const Library& heif = *opened->heif;
  const Owned<heif_decoding_options> options(heif.optionsAlloc(), heif.optionsFree);
  if (!options) return refused("not enough memory");
  options->ignore_transformations = 1;
  options->convert_hdr_to_8bit = 1;
  options->strict_decoding = 1;
  heif_image* decoded = nullptr;
  const heif_error error = heif.decode(opened->handle.get(), &decoded, heif_colorspace_RGB,
                                       heif_chroma_interleaved_RGBA, options.get());
  const std::shared_ptr<const heif_image> image(decoded, heif.imageRelease);
  if (error.code != heif_error_Ok) {
    return refused(std::string("the picture is damaged (") + error.message + ")");
  }
  int stride = 0;
  const std::uint8_t* pixels = heif.plane(decoded, heif_channel_interleaved, &stride);
  const PixelSize size = opened->size;
  if (pixels == nullptr || stride < 4 * size.width ||
      heif.imageWidth(decoded, heif_channel_interleaved) < size.width ||
      heif.imageHeight(decoded, heif_channel_interleaved) < size.height) {
    return refused("the picture is incomplete");
  }
  return DecodedPicture{.bitmap = {.size = size,
                                   .bytesPerRow = static_cast<std::size_t>(stride),
                                   .pixels = pixels,
                                   .opaque = false,
                                   .owner = image},
                        .profile = readProfile(*opened)};
}

} // namespace

bool isHeif(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t brandAt = 8;
  constexpr std::array<std::string_view, 8> brands = {"heic", "heix", "heim", "heis",
                                                      "mif1", "msf1", "hevc", "avif"};
  if (bytes.size() < brandAt + 4) return false;
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), brandAt + 4);
  return text.substr(4, 4) == "ftyp" && std::ranges::count(brands, text.substr(brandAt)) != 0;
}

Result<PixelSize> readHeifSize(std::span<const std::uint8_t> bytes) {
  const auto picture = decodeIsolated("HEIC", [&] { return readSize(bytes); });
  if (!picture) return picture.failure();
  return picture->bitmap.size;
}

Result<DecodedPicture> decodeHeif(std::span<const std::uint8_t> bytes) {
  return decodeIsolated("HEIC", [&] { return decode(bytes); });
}

} // namespace vitrelle::host
