#include "ui/app/ScreenTable.h"

#include "core/families/Families.h"
#include "ui/app/Navigator.h"
#include "ui/centre/DateTextScreen.h"
#include "ui/centre/ExportScreen.h"
#include "ui/centre/LocationScreen.h"
#include "ui/centre/PhoneScreen.h"
#include "ui/centre/SolidBackgroundScreen.h"
#include "ui/centre/WidgetCentreScreen.h"
#include "ui/centre/WidgetSettingsScreen.h"
#include "ui/lifecycle/FamilyScreen.h"
#include "ui/lifecycle/GateScreen.h"
#include "ui/pickers/FontScreen.h"
#include "ui/slicing/IntakeScreen.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace vitrelle::ui {

namespace {

/// Hands an object over to the page.
template <class Object>
QVariant handedOver(Object* object) {
  leaveToQml(object);
  return QVariant::fromValue(object);
}

QVariantMap nothing(Navigator&, const OpenScreen&) {
  return {};
}

template <class Screen>
QVariantMap screenOver(Navigator& navigator, const OpenScreen&) {
  return {{QStringLiteral("screen"), handedOver(new Screen(navigator.platform()))}};
}

/// A page that is still open when the program ends is left.
QVariantMap intake(Navigator& navigator, std::unique_ptr<WallpaperIntake> screen) {
  auto* shown = new IntakeScreen(navigator.platform(), navigator.notices(), std::move(screen));
  QObject::connect(&navigator, &Navigator::closing, shown, &IntakeScreen::disappear);
  return {{QStringLiteral("intake"), handedOver(shown)}};
}

QVariantMap newStyle(Navigator& navigator, const OpenScreen&) {
  return intake(navigator, std::make_unique<ModernNewLightDark>(navigator.platform()));
}

QVariantMap changeStyle(Navigator& navigator, const OpenScreen& place) {
  const StyleNumber number = place.style.value_or(StyleNumber{});
  return intake(navigator, std::make_unique<ModernChangeLightDark>(navigator.platform(), number));
}

QVariantMap anyFont(Navigator&, const OpenScreen&) {
  return {{QStringLiteral("fontPicked"), QString()}};
}

QVariantMap storedFontOf(Navigator& navigator, const OpenScreen& place) {
  auto* fonts = new FontScreen(navigator.platform(), storedFont(place.name));
  return {{QStringLiteral("fontPicked"), fonts->storedName()},
          {QStringLiteral("fonts"), handedOver(fonts)}};
}

ScreenEntry gateEntry(const StyleFamily& family) {
  return {
      std::string(family.words().gateScreen), "GatePage",
      [&family](Navigator& navigator, const OpenScreen&) -> QVariantMap {
        return {{QStringLiteral("gate"), handedOver(new GateScreen(navigator.platform(), family))}};
      }};
}

struct FamilyPage {
  std::string_view FamilyDescription::*typeName;
  std::optional<FlowStart> start; ///< none for the entry, which leads to the others
};
constexpr FamilyPage familyPages[] = {{&FamilyDescription::entryScreen, std::nullopt},
                                      {&FamilyDescription::stylesScreen, FlowStart::create},
                                      {&FamilyDescription::setupScreen, FlowStart::setup},
                                      {&FamilyDescription::secondScreen, FlowStart::second},
                                      {&FamilyDescription::galleryScreen, FlowStart::gallery},
                                      {&FamilyDescription::assignScreen, FlowStart::assign},
                                      {&FamilyDescription::previewScreen, FlowStart::preview}};

ScreenEntry familyEntry(const StyleFamily& family, const FamilyPage& page) {
  const std::string name(family.words().*page.typeName);
  if (!page.start) {
    return {name, "FamilyPage", [&family](Navigator& navigator, const OpenScreen&) -> QVariantMap {
              return {{QStringLiteral("family"),
                       handedOver(new FamilyScreen(navigator.platform(), family))}};
            }};
  }
  return {name, "StyleFlow",
          [&family, start = *page.start](Navigator& navigator, const OpenScreen&) -> QVariantMap {
            auto flow = std::make_shared<StyleFlow>(navigator.platform(), family, start,
                                                    [&navigator] { navigator.back(); });
            return {{QStringLiteral("flow"),
                     handedOver(new FlowScreen(navigator.platform(), std::move(flow)))}};
          }};
}

std::vector<ScreenEntry> makeTable() {
  std::vector<ScreenEntry> table{
      {"ModernContentView", "RootPage", nothing},
      {"ModernNewLightDark", "IntakePage", newStyle},
      {"ModernChangeLightDark", "IntakePage", changeStyle},
      {"PerspectiveZoomDescription", "PerspectiveZoomDescription", nothing},
      {"ModernWidgetCentre", "WidgetCentrePage", screenOver<WidgetCentreScreen>},
      {"WidgetSettingsView", "WidgetSettingsPage", screenOver<WidgetSettingsScreen>},
      {"ModernFontPicker", "FontPickerPage", anyFont},
      {"FontPicker", "FontPickerPage", storedFontOf},
      {"DateFontPicker", "FontPickerPage", storedFontOf},
      {"TimeFontPicker", "FontPickerPage", storedFontOf},
      {"SFSymbolsPicker", "SymbolTrialPage", nothing},
      {"CustomDateTextView", "DateTextPage", screenOver<DateTextScreen>},
      {"SolidBackgroundView", "SolidBackgroundPage", screenOver<SolidBackgroundScreen>},
      {"ModernImageExportView", "ExportPage", screenOver<ExportScreen>},
      {"LocationSettingsView", "LocationSettingsPage", screenOver<LocationScreen>},
      {"PhoneSettingsView", "PhoneSettingsPage", screenOver<PhoneScreen>},
  };
  for (const FamilyDescription& words : familyTable) {
    const StyleFamily& family = styleFamily(words.name);
    if (!words.gateScreen.empty()) table.push_back(gateEntry(family));
    for (const FamilyPage& page : familyPages) {
      if (!(words.*page.typeName).empty()) table.push_back(familyEntry(family, page));
    }
  }
  return table;
}

} // namespace

const std::vector<ScreenEntry>& screenTable() {
  static const std::vector<ScreenEntry> table = makeTable();
  return table;
}

const ScreenEntry* findScreen(std::string_view name) {
  const auto found = std::ranges::find(screenTable(), name, &ScreenEntry::name);
  return found == screenTable().end() ? nullptr : &*found;
}

} // namespace vitrelle::ui
