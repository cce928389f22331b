// One family's records as the shared screens see them: a screen's own copy, made when it appears
// and written back whole. Of two copies, the one that is saved last wins; one that could not be
// read is never saved.
#pragma once

#include "core/store/GroupStore.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace vitrelle {

class StyleRecords {
 public:
  StyleRecords() = default;
  StyleRecords(const StyleRecords&) = delete;
  StyleRecords& operator=(const StyleRecords&) = delete;
  virtual ~StyleRecords() = default;

  virtual void load() = 0;
  /// Whether they were written.
  virtual bool save() const = 0;
  /// Whether what is stored could be taken in; else a save writes nothing.
  virtual bool loaded() const = 0;
  virtual std::size_t count() const = 0;
  /// Indices are below the count.
  virtual std::int64_t tag(std::size_t index) const = 0;
  virtual std::int64_t linked(std::size_t index) const = 0;
  virtual void setLinked(std::size_t index, std::int64_t config) = 0;
};

template <class Record>
class FamilyRecords final : public StyleRecords {
 public:
  FamilyRecords(const Platform& platform, const Family<Record>& family)
      : store_(platform), family_(family) {}

  void load() override {
    auto loaded = store_.readRecords(family_);
    loaded_ = loaded.ok();
    records = loaded ? std::move(loaded).value() : std::vector<Record>();
  }
  bool save() const override {
    if (loaded_) return store_.saveRecords(family_, records);
    store_.reloadWidgets();
    return false;
  }
  bool loaded() const override { return loaded_; }
  std::size_t count() const override { return records.size(); }
  std::int64_t tag(std::size_t index) const override { return records[index].*family_.tag; }
  std::int64_t linked(std::size_t index) const override { return records[index].*family_.linked; }
  void setLinked(std::size_t index, std::int64_t config) override {
    records[index].*family_.linked = config;
  }

  /// The record at an index of any value; none where there is none.
  Record* at(std::int64_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= records.size()) return nullptr;
    return &records[static_cast<std::size_t>(index)];
  }

  std::vector<Record> records;

 private:
  GroupStore store_;
  const Family<Record>& family_;
  bool loaded_ = false;
};

} // namespace vitrelle
