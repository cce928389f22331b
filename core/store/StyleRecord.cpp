#include "core/store/StyleRecord.h"

#include "core/platform/FatalError.h"
#include "core/store/RecordFields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <string>
#include <utility>

namespace vitrelle {

namespace {

template <class Record>
constexpr const Family<Record>& familyOf() {
  return std::get<Family<Record>>(families::all);
}

template <class Record>
Result<std::vector<StyleRecord>> readAll(const GroupStore& store) {
  auto typed = store.readRecords(familyOf<Record>());
  if (!typed) return typed.failure();
  std::vector<Record> records = std::move(typed).value();
  return std::vector<StyleRecord>(std::make_move_iterator(records.begin()),
                                  std::make_move_iterator(records.end()));
}

template <class Record>
bool saveAll(const GroupStore& store, const std::vector<StyleRecord>& records) {
  std::vector<Record> typed;
  typed.reserve(records.size());
  for (const StyleRecord& record : records)
    typed.push_back(std::get<Record>(record));
  return store.saveRecords(familyOf<Record>(), typed);
}

template <class Record>
StyleRecord newOne(std::size_t existing) {
  Record record;
  record.*familyOf<Record>().tag = static_cast<std::int64_t>(existing);
  return record;
}

template <class Record>
FamilyStore storeOf(const Family<Record>& family) {
  return {.name = family.name,
          .records = family.records,
          .selected = family.selected,
          .read = readAll<Record>,
          .save = saveAll<Record>,
          .newRecord = newOne<Record>};
}

Failure unlike(std::string_view words, const char* kind) {
  return {"'" + std::string(words) + "'", std::string("it is no ") + kind};
}

Status setValue(bool& value, std::string_view words) {
  if (words != "true" && words != "false") return unlike(words, "true or false");
  value = words == "true";
  return success();
}

Status setValue(std::int64_t& value, std::string_view words) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(words.data(), words.data() + words.size(), number);
  if (error != std::errc() || end != words.data() + words.size())
    return unlike(words, "whole number");
  value = number;
  return success();
}

Status setValue(std::string& value, std::string_view words) {
  value = words;
  return success();
}

Status setValue(Colour& value, std::string_view words) {
  if (!Colour::isWritten(words)) return unlike(words, "colour such as FF8000");
  value = Colour::parse(words);
  return success();
}

} // namespace

const FamilyStore& familyStore(std::string_view family) {
  static const auto stores =
      std::apply([](const auto&... each) { return std::array{storeOf(each)...}; }, families::all);
  const auto* const found = std::ranges::find(stores, family, &FamilyStore::name);
  if (found == stores.end()) fatalError("there is no widget family " + std::string(family));
  return *found;
}

RecordIndex tagOf(const StyleRecord& record) {
  return std::visit(
      []<class Record>(const Record& typed) { return RecordIndex{typed.*familyOf<Record>().tag}; },
      record);
}

std::optional<StyleNumber> linkedStyle(const StyleRecord& record) {
  const std::int64_t linked = std::visit(
      []<class Record>(const Record& typed) { return typed.*familyOf<Record>().linked; }, record);
  return linked == noLinkedConfig ? std::nullopt : std::optional(StyleNumber{linked});
}

void setLinkedStyle(StyleRecord& record, std::optional<StyleNumber> style) {
  const std::int64_t linked = style ? style->value : noLinkedConfig;
  std::visit([&]<class Record>(Record& typed) { typed.*familyOf<Record>().linked = linked; },
             record);
}

std::vector<std::string_view> fieldNames(const StyleRecord& record) {
  std::vector<std::string_view> names;
  std::visit(
      [&]<class Record>(const Record&) {
        forEachField<Record>([&](const auto& field) { names.push_back(field.name); });
      },
      record);
  return names;
}

Status setField(StyleRecord& record, std::string_view field, std::string_view words) {
  Status result = Failure{std::string(field), "there is no such field"};
  std::visit(
      [&]<class Record>(Record& typed) {
        forEachField<Record>([&](const auto& each) {
          if (each.name != field) return;
          result = setValue(typed.*each.member, words);
          if (!result)
            result =
                Failure{std::string(field), result.failure().what + ": " + result.failure().why};
        });
      },
      record);
  return result;
}

} // namespace vitrelle
