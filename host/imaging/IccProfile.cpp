#include "host/imaging/IccProfile.h"

#include "host/imaging/BigEndian.h"

#include <cstring>

namespace vitrelle::host {

namespace {

constexpr std::size_t headerBytes = 128;
constexpr std::size_t colourSpaceAt = 16;
constexpr std::size_t signatureAt = 36;

} // namespace

bool isIccProfile(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= headerBytes && bytes.size() <= largestIccProfile &&
         readBigEndian32(bytes.data()) == bytes.size() &&
         std::memcmp(bytes.data() + signatureAt, "acsp", 4) == 0;
}

bool isRgbProfile(std::span<const std::uint8_t> profile) {
  return profile.size() >= headerBytes &&
         std::memcmp(profile.data() + colourSpaceAt, "RGB ", 4) == 0;
}

} // namespace vitrelle::host
