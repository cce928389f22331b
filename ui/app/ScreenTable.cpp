#include "ui/app/ScreenTable.h"

#include "core/families/Families.h"
#include "ui/lifecycle/FamilyWords.h"

namespace vitrelle::ui {

namespace {

struct FamilyPage {
  std::string_view FamilyDescription::*typeName;
  const char* page;
  bool needsEditor;
};
constexpr FamilyPage familyPages[] = {{&FamilyDescription::entryScreen, "entry", false},
                                      {&FamilyDescription::stylesScreen, "kinds", true},
                                      {&FamilyDescription::setupScreen, "setup", true},
                                      {&FamilyDescription::secondScreen, "second", true},
                                      {&FamilyDescription::galleryScreen, "gallery", false},
                                      {&FamilyDescription::assignScreen, "assign", false},
                                      {&FamilyDescription::previewScreen, "preview", false}};

QList<ScreenEntry> familyTableEntries() {
  QList<ScreenEntry> entries;
  for (const FamilyDescription& family : familyTable) {
    const bool hasEditor = styleFamily(family.name).hasEditor();
    for (const FamilyPage& page : familyPages) {
      if ((family.*page.typeName).empty() || (page.needsEditor && !hasEditor)) continue;
      entries += {.name = qText(family.*page.typeName),
                  .page = QString::fromLatin1(page.page),
                  .family = qText(family.name)};
    }
  }
  return entries;
}

QList<ScreenEntry> otherEntries() {
  const auto own = [](const char* name, const char* page) {
    return ScreenEntry{QString::fromLatin1(name), QString::fromLatin1(page), {}};
  };
  return {own("ModernContentView", "root"),
          own("ModernNewLightDark", "newStyle"),
          own("ModernChangeLightDark", "changeStyle"),
          own("PerspectiveZoomDescription", "perspectiveZoom"),
          own("ModernFontPicker", "fontPicker"),
          own("FontPicker", "storedFont"),
          own("DateFontPicker", "storedFont"),
          own("TimeFontPicker", "storedFont"),
          own("SFSymbolsPicker", "symbolPicker"),
          own("CustomDateTextView", "dateText"),
          own("SolidBackgroundView", "solidBackground"),
          // Until the centre has something to show.
          {QStringLiteral("ModernWidgetCentre"), QStringLiteral("entry"), QStringLiteral("text")}};
}

} // namespace

QList<ScreenEntry> screenTable() {
  return familyTableEntries() + otherEntries();
}

} // namespace vitrelle::ui
