// One family's records as the shared screens see them: a screen's own copy, made when it appears
// and written back whole. Of two copies, the one that is saved last wins; one that could not be
// read is never saved.
#pragma once

#include "core/store/StyleRecord.h"

#include <cstddef>
#include <vector>

namespace vitrelle {

class StyleRecords final {
 public:
  StyleRecords(const Platform& platform, const FamilyStore& family)
      : store_(platform), family_(family) {}

  void load();
  /// Whether they were written.
  bool save() const;
  /// Whether what is stored could be taken in; else a save writes nothing.
  bool loaded() const { return loaded_; }
  std::size_t count() const { return records.size(); }
  /// None where there is none.
  StyleRecord* at(RecordIndex index);
  const StyleRecord* at(RecordIndex index) const;
  /// Adds one with the values of a new record.
  StyleRecord& append();

  std::vector<StyleRecord> records;

 private:
  GroupStore store_;
  const FamilyStore& family_;
  bool loaded_ = false;
};

} // namespace vitrelle
