// Any bytes as the answer of a decoder that a hostile file has taken over: nothing, a failure in
// plain words, or a picture as wanted and within bounds, all of which is there, and which comes
// through another answer the same.

#include "host/imaging/DecoderAnswer.h"
#include "host/imaging/IccProfile.h"
#include "host/imaging/PictureBounds.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

using namespace vitrelle;
using namespace vitrelle::host;
using Answer = std::optional<Result<DecodedPicture>>;

Answer read(Wanted wanted, std::span<const std::uint8_t> bytes) {
  return readAnswer(wanted, "HEIC", [&](std::span<std::uint8_t> out) {
    const std::size_t count = std::min(out.size(), bytes.size());
    std::ranges::copy(bytes.first(count), out.begin());
    bytes = bytes.subspan(count);
    return count;
  });
}

void require(bool holds) {
  if (!holds) std::abort();
}

bool isPlain(const Failure& failure) {
  return failure.what == "HEIC" && failure.why.size() <= 200 &&
         std::ranges::all_of(failure.why,
                             [](char letter) { return letter >= ' ' && letter <= '~'; });
}

void check(Wanted wanted, const DecodedPicture& picture) {
  const auto& [size, bytesPerRow, pixels, opaque, owner] = picture.bitmap;
  require(withinBounds(size.width, size.height) && !opaque);
  require((pixels != nullptr) == (wanted == Wanted::picture));
  const Data& icc = picture.profile.icc;
  require(icc.empty() || (isIccProfile(icc) && icc.size() <= largestIccProfile));
}

void expectSame(const DecodedPicture& picture, const DecodedPicture& again) {
  const Bitmap& left = picture.bitmap;
  const Bitmap& right = again.bitmap;
  require(left.size == right.size && picture.profile == again.profile);
  const std::size_t rowBytes = static_cast<std::size_t>(left.size.width) * 4;
  for (std::int32_t y = 0; left.pixels != nullptr && y < left.size.height; ++y)
    require(std::memcmp(left.row(y), right.row(y), rowBytes) == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  for (const Wanted wanted : {Wanted::size, Wanted::picture}) {
    const Answer answer = read(wanted, {data, size});
    if (!answer) continue;
    if (*answer) check(wanted, **answer);
    Data bytes;
    require(writeAnswer(*answer, [&](std::span<const std::uint8_t> more) {
      bytes.insert(bytes.end(), more.begin(), more.end());
      return true;
    }));
    const Answer again = read(wanted, bytes);
    require(again && again->ok() == answer->ok());
    if (*answer) {
      expectSame(**answer, **again);
    } else {
      require(isPlain(answer->failure()) && answer->failure() == again->failure());
    }
  }
  return 0;
}
