#include "core/slicing/Measurements.h"

#include "core/slicing/DeviceNames.h"

#include <array>
#include <utility>

namespace vitrelle::Measurements {

namespace {

struct Field {
  const char* key;
  std::int64_t WidgetMeasurements::*value;
};

/// In the order in which a lookup reads them.
constexpr Field fields[] = {
    {"WIDGET_SIZE", &WidgetMeasurements::widgetSize},
    {"TOP_SPACING", &WidgetMeasurements::topSpacing},
    {"LEFT_SPACING", &WidgetMeasurements::leftSpacing},
    {"HORIZONTAL_SPACING", &WidgetMeasurements::horizontalSpacing},
    {"VERTICAL_SPACING", &WidgetMeasurements::verticalSpacing},
};

/// A simulator's name stands for the device that it simulates.
std::string withoutSimulator(const std::string& deviceName) {
  constexpr std::string_view word = "Simulator";
  constexpr const char* whiteSpace = " \t\n\v\f\r";
  const std::size_t found = deviceName.find(word);
  if (found == std::string::npos) return deviceName;
  std::string name = deviceName;
  name.erase(found, word.size());
  const std::size_t first = name.find_first_not_of(whiteSpace);
  if (first == std::string::npos) return "";
  return name.substr(first, name.find_last_not_of(whiteSpace) - first + 1);
}

std::string described(const MeasurementsByKey& values) {
  std::string text;
  for (const Field& field : fields) {
    const auto found = values.find(field.key);
    if (found == values.end()) continue;
    if (!text.empty()) text += ", ";
    text += '"' + found->first + "\": " + std::to_string(found->second);
  }
  return "[" + text + "]";
}

const char* word(bool value) {
  return value ? "true" : "false";
}

/// A table's dictionary as a type of its own, so that each is made once.
template <MeasurementTable table>
struct SharedDictionary {
  MeasurementsByDevice value = dictionary(table);
};

template <MeasurementTable table>
const MeasurementsByDevice& shared(const Platform& platform) {
  using Dictionary = SharedDictionary<table>;
  return platform.shared.get<Dictionary>([] { return new Dictionary; })->value;
}

const MeasurementsByDevice& sharedTable(const Platform& platform, MeasurementTable table) {
  switch (table) {
  case MeasurementTable::iOS18:
    return shared<MeasurementTable::iOS18>(platform);
  case MeasurementTable::classic:
    return shared<MeasurementTable::classic>(platform);
  case MeasurementTable::zoomed:
    return shared<MeasurementTable::zoomed>(platform);
  }
  fatalError("a measurement table that does not exist");
}

} // namespace

bool isZoomed(double scale, double nativeScale) {
  return scale < nativeScale;
}

MeasurementTable tableFor(const MeasurementSituation& situation) {
  if (situation.zoomed) return MeasurementTable::zoomed;
  return situation.os18 ? MeasurementTable::iOS18 : MeasurementTable::classic;
}

MeasurementsByDevice dictionary(MeasurementTable table) {
  MeasurementsByDevice devices;
  for (const DeviceMeasurements& row : measurementRows(table)) {
    MeasurementsByKey& values = devices[std::string(row.device)];
    for (const Field& field : fields)
      values[field.key] = row.measurements.*field.value;
  }
  return devices;
}

WidgetMeasurements lookUp(const MeasurementSituation& situation, const MeasurementsByDevice& table,
                          const std::function<void(const std::string&)>& print) {
  const std::string name = withoutSimulator(situation.deviceName);
  print(name);
  const auto device = table.find(name);
  if (device == table.end()) return {};

  print(described(device->second));
  WidgetMeasurements result;
  std::string numbers;
  for (const Field& field : fields) {
    const auto value = device->second.find(field.key);
    if (value == device->second.end()) {
      print(std::string("Error getting ") + field.key);
      return result;
    }
    result.*field.value = value->second;
    numbers += " " + std::to_string(value->second);
  }
  print("Running  " + name + " , iOS 18+:  " + word(situation.os18) +
        " , Zoomed =  " + word(situation.zoomed) + numbers);
  return result;
}

WidgetMeasurements current(const Platform& platform) {
  const bool os18 = platform.device.isOperatingSystemAtLeast({18, 0, 0});
  const double nativeScale = platform.device.screenNativeScale();
  const double scale = platform.device.screenScale();
  const MeasurementSituation situation{
      .deviceName = deviceName(platform), .os18 = os18, .zoomed = isZoomed(scale, nativeScale)};
  return lookUp(situation, sharedTable(platform, tableFor(situation)), platform.debugConsole.print);
}

} // namespace vitrelle::Measurements
