// Arrays of records as the bytes that the store holds: a JSON array of objects, compact, UTF-8.
#pragma once

#include "core/platform/Data.h"
#include "core/platform/Result.h"
#include "core/store/Records.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vitrelle {

/// Each object has all fields of its record, in order. Fails on text that is not UTF-8. An
/// unresolved colour becomes `null`, which no reader accepts.
template <class Record>
Result<Data> encodeRecords(const std::vector<Record>& records);

/// No family is read beyond so many records: a dozen can be made, and a store may come from
/// anywhere.
inline constexpr std::size_t mostRecords = 1000;

/// Nothing unless every record has every field in its right type; fields of other names are
/// ignored, and of fields of one name the last counts. An integer may be written with a fraction of
/// zero. Ends behind the first record too many, so that whoever gets more than the most has not got
/// all. Takes time in proportion to the text.
template <class Record>
std::optional<std::vector<Record>> decodeRecords(const Data& json);

} // namespace vitrelle
