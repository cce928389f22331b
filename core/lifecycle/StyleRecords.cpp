#include "core/lifecycle/StyleRecords.h"

#include <utility>

namespace vitrelle {

void StyleRecords::load() {
  auto loaded = family_.read(store_);
  loaded_ = loaded.ok();
  records = loaded ? std::move(loaded).value() : std::vector<StyleRecord>();
}

bool StyleRecords::save() const {
  if (loaded_) return family_.save(store_, records);
  store_.reloadWidgets();
  return false;
}

StyleRecord* StyleRecords::at(RecordIndex index) {
  return index.isWithin(count()) ? &records[static_cast<std::size_t>(index.value)] : nullptr;
}

const StyleRecord* StyleRecords::at(RecordIndex index) const {
  return index.isWithin(count()) ? &records[static_cast<std::size_t>(index.value)] : nullptr;
}

StyleRecord& StyleRecords::append() {
  return records.emplace_back(family_.newRecord(count()));
}

} // namespace vitrelle
