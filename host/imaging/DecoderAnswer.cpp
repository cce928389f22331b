#include "host/imaging/DecoderAnswer.h"

#include "host/imaging/IccProfile.h"
#include "host/imaging/PictureBounds.h"
#include "host/imaging/PixelBuffer.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace vitrelle::host {

namespace {

enum class Kind : std::uint8_t { failure, size, picture };

/// Before the words of a failure, or the ICC profile and the rows of RGBA pixels. Both programs are
/// of one build, so numbers are as the machine has them.
struct Head {
  std::uint8_t kind;
  std::uint8_t hasCicp;
  std::uint8_t cicp[4];
  std::int32_t width;
  std::int32_t height;
  std::uint32_t textBytes; ///< of words or profile
};

constexpr std::size_t mostWords = 200;

template <class Bytes>
auto bytesOf(Bytes& object) {
  using Byte = std::conditional_t<std::is_const_v<Bytes>, const std::uint8_t, std::uint8_t>;
  return std::span(reinterpret_cast<Byte*>(&object), sizeof object);
}

bool readAll(const AnswerSource& source, std::span<std::uint8_t> out) {
  return out.empty() || source(out) == out.size();
}

bool atEnd(const AnswerSource& source) {
  std::uint8_t more = 0;
  return source({&more, 1}) == 0;
}

std::optional<Failure> readFailure(const Head& head, const std::string& what,
                                   const AnswerSource& source) {
  if (head.textBytes > mostWords) return std::nullopt;
  Data words(head.textBytes);
  if (!readAll(source, words) || !atEnd(source)) return std::nullopt;
  std::ranges::replace_if(
      words, [](std::uint8_t letter) { return letter < ' ' || letter > '~'; }, '?');
  return Failure{what, std::string(words.begin(), words.end())};
}

} // namespace

bool writeAnswer(const Result<DecodedPicture>& picture, const AnswerSink& sink) {
  Head head{};
  if (!picture) {
    const std::string words = picture.failure().why.substr(0, mostWords);
    head.kind = static_cast<std::uint8_t>(Kind::failure);
    head.textBytes = static_cast<std::uint32_t>(words.size());
    return sink(bytesOf(std::as_const(head))) &&
           sink({reinterpret_cast<const std::uint8_t*>(words.data()), words.size()});
  }
  const Bitmap& bitmap = picture->bitmap;
  const ColourProfile& profile = picture->profile;
  head.kind = static_cast<std::uint8_t>(bitmap.pixels == nullptr ? Kind::size : Kind::picture);
  head.hasCicp = profile.cicp ? 1 : 0;
  if (profile.cicp) std::ranges::copy(*profile.cicp, head.cicp);
  head.width = bitmap.size.width;
  head.height = bitmap.size.height;
  head.textBytes = static_cast<std::uint32_t>(profile.icc.size());
  if (!sink(bytesOf(std::as_const(head))) || !sink(profile.icc)) return false;
  for (std::int32_t y = 0; bitmap.pixels != nullptr && y < bitmap.size.height; ++y) {
    if (!sink({bitmap.row(y), static_cast<std::size_t>(bitmap.size.width) * 4})) return false;
  }
  return true;
}

std::optional<Result<DecodedPicture>> readAnswer(Wanted wanted, const std::string& what,
                                                 const AnswerSource& source) {
  Head head{};
  if (!readAll(source, bytesOf(head))) return std::nullopt;
  if (head.kind == static_cast<std::uint8_t>(Kind::failure)) {
    auto failure = readFailure(head, what, source);
    if (!failure) return std::nullopt;
    return *std::move(failure);
  }
  const Kind kind = wanted == Wanted::size ? Kind::size : Kind::picture;
  if (head.kind != static_cast<std::uint8_t>(kind) || head.hasCicp > 1 ||
      !withinBounds(head.width, head.height) || head.textBytes > largestIccProfile) {
    return std::nullopt;
  }
  DecodedPicture picture;
  picture.bitmap.size = {head.width, head.height};
  if (head.hasCicp != 0) std::ranges::copy(head.cicp, picture.profile.cicp.emplace().begin());
  Data& icc = picture.profile.icc;
  icc.resize(head.textBytes);
  if (!readAll(source, icc) || (!icc.empty() && !isIccProfile(icc))) return std::nullopt;
  if (wanted == Wanted::picture) {
    const std::size_t bytesPerRow = static_cast<std::size_t>(head.width) * 4;
    const std::size_t size = bytesPerRow * static_cast<std::size_t>(head.height);
    const std::shared_ptr<std::uint8_t> pixels = allocatePixels(size);
    if (!pixels) return Failure{what, "not enough memory"};
    if (!readAll(source, {pixels.get(), size})) return std::nullopt;
    picture.bitmap.bytesPerRow = bytesPerRow;
    picture.bitmap.pixels = pixels.get();
    picture.bitmap.owner = pixels;
  }
  if (!atEnd(source)) return std::nullopt;
  return picture;
}

} // namespace vitrelle::host
