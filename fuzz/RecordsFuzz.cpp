// Any bytes as the records of every family: what decodes comes back the same after storing.
#include "core/store/Family.h"
#include "core/store/RecordCoding.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

template <class Record>
void check(const vitrelle::Data& json) {
  const auto decoded = vitrelle::decodeRecords<Record>(json);
  if (!decoded) return;
  // Stored colours lose their alpha, so the first storing may change them, and no later one may.
  const auto stored = vitrelle::encodeRecords(*decoded);
  if (!stored) std::abort(); // a decoded string is valid UTF-8
  const auto again = vitrelle::decodeRecords<Record>(*stored);
  if (!again || again->size() != decoded->size()) std::abort();
  const auto restored = vitrelle::encodeRecords(*again);
  if (!restored || *restored != *stored) std::abort();
  if (vitrelle::decodeRecords<Record>(*restored) != again) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const vitrelle::Data json(bytes, bytes + size);
  vitrelle::forEachFamily(
      [&]<class Record>(const vitrelle::Family<Record>&) { check<Record>(json); });
  return 0;
}
