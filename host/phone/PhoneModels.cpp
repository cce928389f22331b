#include "host/phone/PhoneModels.h"

#include <algorithm>
#include <span>
#include <string>

namespace vitrelle::host {

namespace {

/// A class of screens: points at the standard setting and zoomed, pixels per point of a
/// screenshot, and the width of the panel in pixels. Zoomed, fewer points fill the same panel.
struct Screen {
  PointSize standard;
  PointSize zoomed;
  double scale;
  double panelWidth;
};

// The makers' published sizes. The panels of the Plus and Mini phones have fewer pixels than their
// screenshots; the width that counts here is the screenshot's, because a zoomed display is told
// from its scale being less than its native scale.
constexpr Screen small35{{320, 480}, {320, 480}, 2, 640};
constexpr Screen small40{{320, 568}, {320, 568}, 2, 640};
constexpr Screen classic47{{375, 667}, {320, 568}, 2, 750};
constexpr Screen plus55{{414, 736}, {375, 667}, 3, 1242};
constexpr Screen notch58{{375, 812}, {320, 693}, 3, 1125};
constexpr Screen notch61{{414, 896}, {375, 812}, 2, 828};
constexpr Screen notch65{{414, 896}, {375, 812}, 3, 1242};
constexpr Screen flat61{{390, 844}, {320, 693}, 3, 1170};
constexpr Screen flat67{{428, 926}, {375, 812}, 3, 1284};
constexpr Screen island61{{393, 852}, {320, 693}, 3, 1179};
constexpr Screen island67{{430, 932}, {375, 812}, 3, 1290};
constexpr Screen island63{{402, 874}, {320, 695}, 3, 1206};
constexpr Screen island69{{440, 956}, {375, 814}, 3, 1320};

struct Row {
  const char* name;
  std::vector<std::string> identifiers;
  Screen screen;
};

const std::vector<Row>& rows() {
  static const std::vector<Row> table = {
      {"iPhone 16 Plus", {"iPhone17,4"}, island67},
      {"iPhone 16", {"iPhone17,3"}, island61},
      {"iPhone 16 Pro Max", {"iPhone17,2"}, island69},
      {"iPhone 16 Pro", {"iPhone17,1"}, island63},
      {"iPhone 15 Pro Max", {"iPhone16,2"}, island67},
      {"iPhone 15 Pro", {"iPhone16,1"}, island61},
      {"iPhone 15 Plus", {"iPhone15,5"}, island67},
      {"iPhone 15", {"iPhone15,4"}, island61},
      {"iPhone 14 Pro Max", {"iPhone15,3"}, island67},
      {"iPhone 14 Pro", {"iPhone15,2"}, island61},
      {"iPhone 14 Plus", {"iPhone14,8"}, flat67},
      {"iPhone 14", {"iPhone14,7"}, flat61},
      {"iPhone SE (3rd generation)", {"iPhone14,6"}, classic47},
      {"iPhone 13 Pro Max", {"iPhone14,3"}, flat67},
      {"iPhone 13 Pro", {"iPhone14,2"}, flat61},
      {"iPhone 13", {"iPhone14,5", "iPhone14,1"}, flat61},
      {"iPhone 13 Mini", {"iPhone14,4"}, notch58},
      {"iPhone 12 Pro Max", {"iPhone13,4"}, flat67},
      {"iPhone 12 Pro", {"iPhone13,3"}, flat61},
      {"iPhone 12", {"iPhone13,2"}, flat61},
      {"iPhone 12 Mini", {"iPhone13,1"}, notch58},
      {"iPhone SE (2nd generation)", {"iPhone12,8"}, classic47},
      {"iPhone 11 Pro Max", {"iPhone12,5"}, notch65},
      {"iPhone 11 Pro", {"iPhone12,3"}, notch58},
      {"iPhone 11", {"iPhone12,1"}, notch61},
      {"iPhone XR", {"iPhone11,8"}, notch61},
      {"iPhone XS Max", {"iPhone11,4", "iPhone11,6"}, notch65},
      {"iPhone XS", {"iPhone11,2"}, notch58},
      {"iPhone X", {"iPhone10,3", "iPhone10,6"}, notch58},
      {"iPhone 8 Plus", {"iPhone10,2", "iPhone10,5"}, plus55},
      {"iPhone 8", {"iPhone10,1", "iPhone10,4"}, classic47},
      {"iPhone 7 Plus", {"iPhone9,2", "iPhone9,4"}, plus55},
      {"iPhone 7", {"iPhone9,1", "iPhone9,3"}, classic47},
      {"iPhone SE", {"iPhone8,4"}, small40},
      {"iPhone 6s Plus", {"iPhone8,2"}, plus55},
      {"iPhone 6s", {"iPhone8,1"}, classic47},
      {"iPhone 6 Plus", {"iPhone7,1"}, plus55},
      {"iPhone 6", {"iPhone7,2"}, classic47},
      {"iPhone 5s", {"iPhone6,1", "iPhone6,2"}, small40},
      {"iPhone 5c", {"iPhone5,3", "iPhone5,4"}, small40},
      {"iPhone 5", {"iPhone5,1", "iPhone5,2"}, small40},
      {"iPhone 4s", {"iPhone4,1"}, small35},
      {"iPhone 4", {"iPhone3,1", "iPhone3,2", "iPhone3,3"}, small35},
  };
  return table;
}

PhoneModel model(std::string name, std::vector<std::string> identifiers, const Screen& screen) {
  const auto mode = [&](PointSize bounds, double nativeScale) {
    return ScreenMode{.bounds = bounds, .scale = screen.scale, .nativeScale = nativeScale};
  };
  // A phone without the zoom setting is taken at its word when it is said to be zoomed.
  const bool canZoom = screen.zoomed != screen.standard;
  const double zoomedScale = canZoom ? screen.panelWidth / screen.zoomed.width : screen.scale * 1.2;
  return {.name = std::move(name),
          .identifiers = std::move(identifiers),
          .standard = mode(screen.standard, screen.scale),
          .zoomed = mode(screen.zoomed, zoomedScale)};
}

std::vector<PhoneModel> makeModels() {
  std::vector<PhoneModel> models;
  for (const Row& row : rows())
    models.push_back(model(row.name, row.identifiers, row.screen));
  return models;
}

} // namespace

const std::vector<PhoneModel>& phoneModels() {
  static const std::vector<PhoneModel> models = makeModels();
  return models;
}

PhoneModel phoneModel(std::string_view identifier) {
  for (const PhoneModel& phone : phoneModels()) {
    if (std::ranges::count(phone.identifiers, identifier) != 0) return phone;
  }
  return model(std::string(identifier), {std::string(identifier)}, island61);
}

} // namespace vitrelle::host
