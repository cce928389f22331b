#include "core/store/RecordCoding.h"

#include "core/store/RecordFields.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace vitrelle {

namespace {

using Json = nlohmann::json;

Json json(const Colour& colour) {
  const std::optional<std::string> digits = colour.hex(false);
  return digits ? Json(*digits) : Json(nullptr);
}

template <class Value>
Json json(const Value& value) {
  return value;
}

bool read(const Json& json, std::int64_t& value) {
  if (json.is_number_float()) {
    const double number = json.get<double>();
    // The lowest integer is left out: what lies just below it arrives here rounded to it.
    if (number <= -0x1p63 || number >= 0x1p63 || number != std::trunc(number)) return false;
    value = static_cast<std::int64_t>(number);
    return true;
  }
  if (json.is_number_unsigned() && json.get<std::uint64_t>() > INT64_MAX) return false;
  if (!json.is_number_integer()) return false;
  value = json.get<std::int64_t>();
  return true;
}

bool read(const Json& json, bool& value) {
  if (!json.is_boolean()) return false;
  value = json.get<bool>();
  return true;
}

bool read(const Json& json, std::string& value) {
  if (!json.is_string()) return false;
  value = json.get_ref<const std::string&>();
  return true;
}

bool read(const Json& json, Colour& value) {
  if (!json.is_string()) return false;
  value = Colour::parse(json.get_ref<const std::string&>());
  return true;
}

/// Takes records in as the text is read: no tree of it is made, however large it is or however
/// deeply it nests.
template <class Record>
class RecordReader final : public nlohmann::json_sax<Json> {
 public:
  bool null() override { return take(nullptr); }
  bool boolean(bool value) override { return take(value); }
  bool number_integer(number_integer_t value) override { return take(value); }
  bool number_unsigned(number_unsigned_t value) override { return take(value); }
  bool number_float(number_float_t value, const string_t& /*text*/) override { return take(value); }
  bool string(string_t& value) override { return take(std::move(value)); }
  bool binary(binary_t& /*value*/) override { return false; }

  bool start_array(std::size_t /*size*/) override { return open(depth_ == outside); }
  bool end_array() override {
    --depth_;
    return true;
  }
  bool start_object(std::size_t /*size*/) override {
    if (depth_ == inArray) {
      records_.emplace_back();
      fields_.fill(Field::missing);
    }
    return open(depth_ == inArray);
  }
  bool key(string_t& name) override {
    if (depth_ != inRecord) return true;
    field_ = fieldCount;
    std::size_t index = 0;
    forEachField<Record>([&](const auto& field) {
      if (name == field.name) field_ = index;
      ++index;
    });
    return true;
  }
  bool end_object() override {
    if (--depth_ != inArray) return true;
    const bool complete =
        std::ranges::all_of(fields_, [](Field field) { return field == Field::read; });
    tooMany_ = complete && records_.size() > mostRecords;
    return complete && !tooMany_;
  }
  bool parse_error(std::size_t /*at*/, const std::string& /*token*/,
                   const Json::exception& /*error*/) override {
    return false;
  }

  /// Whether the reading ended because there are enough.
  bool tooMany() const { return tooMany_; }
  std::vector<Record> records() && { return std::move(records_); }

 private:
  enum class Field { missing, unreadable, read };
  static constexpr std::size_t fieldCount =
      std::tuple_size_v<std::remove_cvref_t<decltype(RecordFields<Record>::all)>>;
  static constexpr std::size_t outside = 0;
  static constexpr std::size_t inArray = 1;
  static constexpr std::size_t inRecord = 2;

  /// An array or an object begins, where one is `expected` or as the value of a field, which has
  /// neither.
  bool open(bool expected) {
    if (!expected && depth_ < inRecord) return false;
    if (depth_ == inRecord && field_ < fieldCount) fields_[field_] = Field::unreadable;
    ++depth_;
    return true;
  }

  template <class Value>
  bool take(Value&& value) {
    if (depth_ < inRecord) return false;
    if (depth_ > inRecord || field_ == fieldCount) return true;
    const Json json(std::forward<Value>(value));
    std::size_t index = 0;
    forEachField<Record>([&](const auto& field) {
      if (index++ == field_) {
        const bool isRead = read(json, records_.back().*field.member);
        fields_[field_] = isRead ? Field::read : Field::unreadable;
      }
    });
    return true;
  }

  std::vector<Record> records_;
  std::array<Field, fieldCount> fields_{}; ///< of the last record
  std::size_t field_ = fieldCount;         ///< whose value comes next; the count for an unknown one
  std::size_t depth_ = outside;            ///< of arrays and objects
  bool tooMany_ = false;
};

} // namespace

template <class Record>
Result<Data> encodeRecords(const std::vector<Record>& records) {
  std::string text = "[";
  const char* field = "";
  try {
    for (const Record& record : records) {
      if (text.size() > 1) text += ',';
      char separator = '{';
      forEachField<Record>([&](const auto& described) {
        field = described.name;
        text += separator;
        text += Json(field).dump() + ":" + json(record.*described.member).dump();
        separator = ',';
      });
      text += '}';
    }
  } catch (const Json::exception&) {
    return Failure{field, "not valid UTF-8"};
  }
  text += ']';
  return Data(text.begin(), text.end());
}

template <class Record>
std::optional<std::vector<Record>> decodeRecords(const Data& bytes) {
  RecordReader<Record> reader;
  const bool whole = Json::sax_parse(bytes.begin(), bytes.end(), &reader);
  if (!whole && !reader.tooMany()) return std::nullopt;
  return std::move(reader).records();
}

#define VITRELLE_CODED(Record)                                                                     \
  template Result<Data> encodeRecords<Record>(const std::vector<Record>&);                         \
  template std::optional<std::vector<Record>> decodeRecords<Record>(const Data&)

VITRELLE_CODED(textWidgetData);
VITRELLE_CODED(musicWidgetData);
VITRELLE_CODED(imageWidgetData);
VITRELLE_CODED(batteryWidgetData);
VITRELLE_CODED(weatherWidgetData);
VITRELLE_CODED(clockWidgetData);

} // namespace vitrelle
