#include "core/store/RecordCoding.h"

#include "core/store/RecordFields.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <string>

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

template <class Record>
bool readRecord(const Json& json, Record& record) {
  if (!json.is_object()) return false;
  bool complete = true;
  forEachField<Record>([&](const auto& field) {
    const auto found = json.find(field.name);
    complete = complete && found != json.end() && read(*found, record.*field.member);
  });
  return complete;
}

/// No field of a record is an array or an object, so those are dropped as they are parsed: however
/// deeply a hostile text nests, nothing of it is kept.
bool keepFlat(int depth, Json::parse_event_t event, Json& /*value*/) {
  const bool opens =
      event == Json::parse_event_t::object_start || event == Json::parse_event_t::array_start;
  return !opens || depth < 2;
}

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
  const Json array = Json::parse(bytes.begin(), bytes.end(), keepFlat, /*allow_exceptions=*/false);
  if (!array.is_array()) return std::nullopt;
  std::vector<Record> records(array.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (!readRecord(array[i], records[i])) return std::nullopt;
  }
  return records;
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
