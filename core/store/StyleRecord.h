// A record of any family as one value, and how a family's array of them is read and written, for
// those who work with all families alike.
#pragma once

#include "core/store/GroupStore.h"
#include "core/store/Numbers.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace vitrelle {

using StyleRecord = std::variant<textWidgetData, musicWidgetData, imageWidgetData,
                                 batteryWidgetData, weatherWidgetData, clockWidgetData>;

/// A `Family` without its record's type.
struct FamilyStore {
  std::string_view name;
  Key<Data> records;
  Key<std::int64_t> selected; ///< index of the chosen record
  /// As `GroupStore` reads and saves them; every record is of this family.
  Result<std::vector<StyleRecord>> (*read)(const GroupStore& store);
  bool (*save)(const GroupStore& store, const std::vector<StyleRecord>& records);
  /// The one behind so many others.
  StyleRecord (*newRecord)(std::size_t existing);
};

/// A name that no family has is a fatal error.
const FamilyStore& familyStore(std::string_view family);

/// The index that the record had when it was made.
RecordIndex tagOf(const StyleRecord& record);
/// The wallpaper style that it is linked to, if it is to one. The number may be any that is stored.
std::optional<StyleNumber> linkedStyle(const StyleRecord& record);
void setLinkedStyle(StyleRecord& record, std::optional<StyleNumber> style);

/// The stored names of its fields, in order.
std::vector<std::string_view> fieldNames(const StyleRecord& record);
/// Sets a field by its stored name from words: "true", "16", "FF8000" (also with two digits of
/// alpha), or the text itself. Fails on another name and on words of another kind.
Status setField(StyleRecord& record, std::string_view field, std::string_view words);

} // namespace vitrelle
