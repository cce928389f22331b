#include "host/drawing/Fonts.h"

#include <QFontDatabase>

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace vitrelle::host {

namespace {

constexpr const char* systemFamily = "Inter";
constexpr const char* emojiFamily = "Noto Color Emoji";

/// No widget has room for a larger letter, and numbers in stored records may be anything.
constexpr double largestSize = 1000;

struct PatternDelete {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct FontSetDelete {
  void operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }
};
struct ObjectSetDelete {
  void operator()(FcObjectSet* objects) const { FcObjectSetDestroy(objects); }
};

std::string text(const FcPattern* face, const char* object) {
  FcChar8* value = nullptr;
  if (FcPatternGetString(face, object, 0, &value) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(value);
}

/// Calls with each installed face that has outlines and is not a range of faces in one. The old
/// form of a font that comes in two says nothing true of its letters.
template <class Visit>
void forEachFace(FcPattern* wanted, Visit visit) {
  const std::unique_ptr<FcPattern, PatternDelete> pattern(wanted);
  FcPatternAddBool(wanted, FC_OUTLINE, FcTrue);
  FcPatternAddBool(wanted, FC_VARIABLE, FcFalse);
  const std::unique_ptr<FcObjectSet, ObjectSetDelete> objects(
      FcObjectSetBuild(FC_FAMILY, FC_STYLE, FC_POSTSCRIPT_NAME, FC_WEIGHT, FC_SLANT, FC_WIDTH,
                       FC_SYMBOL, FC_LANG, FC_CHARSET, FC_FONTFORMAT, FC_FILE, nullptr));
  const std::unique_ptr<FcFontSet, FontSetDelete> fonts(FcFontList(nullptr, wanted, objects.get()));
  if (fonts == nullptr) return;
  for (int i = 0; i < fonts->nfont; ++i) {
    if (text(fonts->fonts[i], FC_FONTFORMAT) != "Type 1") visit(fonts->fonts[i]);
  }
}

int number(const FcPattern* face, const char* object, int absent) {
  int value = absent;
  FcPatternGetInteger(face, object, 0, &value);
  return value;
}

/// Whether it puts its signs at the codes of Western letters: it then has some at the control
/// characters among those, and none beyond them.
bool hasSignsForLetters(const FcPattern* face) {
  constexpr FcChar32 firstControl = 0x80;
  constexpr FcChar32 lastControl = 0x9F;
  constexpr FcChar32 last = 0xFF;
  FcCharSet* characters = nullptr;
  if (FcPatternGetCharSet(face, FC_CHARSET, 0, &characters) != FcResultMatch) return false;
  FcChar32 western = 0;
  bool controls = false;
  for (FcChar32 code = 0; code <= last; ++code) {
    if (FcCharSetHasChar(characters, code) == FcFalse) continue;
    ++western;
    controls = controls || (code >= firstControl && code <= lastControl);
  }
  return controls && western == FcCharSetCount(characters);
}

/// Whether it has what a language is written with; fonts of signs and pictures have not.
bool hasLetters(const FcPattern* face) {
  FcBool symbol = FcFalse;
  if (FcPatternGetBool(face, FC_SYMBOL, 0, &symbol) == FcResultMatch && symbol == FcTrue)
    return false;
  if (hasSignsForLetters(face)) return false;
  FcLangSet* languages = nullptr;
  if (FcPatternGetLangSet(face, FC_LANG, 0, &languages) != FcResultMatch) return false;
  FcStrSet* names = FcLangSetGetLangs(languages);
  FcStrList* list = FcStrListCreate(names);
  const bool any = FcStrListNext(list) != nullptr;
  FcStrListDone(list);
  FcStrSetDestroy(names);
  return any;
}

/// How far a face is from an upright regular one of normal width.
int distanceFromRegular(const FcPattern* face) {
  const int slant = number(face, FC_SLANT, FC_SLANT_ROMAN) == FC_SLANT_ROMAN ? 0 : 1000;
  const int name = text(face, FC_STYLE) == "Regular" ? 0 : 1; // some bold ones do not say so
  return slant + name + std::abs(number(face, FC_WEIGHT, FC_WEIGHT_REGULAR) - FC_WEIGHT_REGULAR) +
         std::abs(number(face, FC_WIDTH, FC_WIDTH_NORMAL) - FC_WIDTH_NORMAL);
}

struct Face {
  QString family;
  QString style;
  // Families of one name from several makers are told apart by these alone.
  QFont::Style slant;
  int weight; ///< 400 is regular
};

QFont::Style slantOf(const FcPattern* face) {
  switch (number(face, FC_SLANT, FC_SLANT_ROMAN)) {
  case FC_SLANT_ITALIC:
    return QFont::StyleItalic;
  case FC_SLANT_OBLIQUE:
    return QFont::StyleOblique;
  default:
    return QFont::StyleNormal;
  }
}

std::optional<Face> findFace(const std::string& postScriptName) {
  std::optional<Face> found;
  FcPattern* wanted = FcPatternCreate();
  FcPatternAddString(wanted, FC_POSTSCRIPT_NAME,
                     reinterpret_cast<const FcChar8*>(postScriptName.c_str()));
  forEachFace(wanted, [&](const FcPattern* face) {
    if (found || text(face, FC_POSTSCRIPT_NAME) != postScriptName) return;
    found = Face{.family = QString::fromStdString(text(face, FC_FAMILY)),
                 .style = QString::fromStdString(text(face, FC_STYLE)),
                 .slant = slantOf(face),
                 .weight = FcWeightToOpenType(number(face, FC_WEIGHT, FC_WEIGHT_REGULAR))};
  });
  return found;
}

/// The faces asked for so far, by their names.
struct Known {
  std::mutex mutex;
  std::map<std::string, std::optional<Face>> faces;
  std::chrono::steady_clock::time_point looked; ///< when new ones were last looked for
};

Known& known() {
  static Known instance;
  return instance;
}

/// Asking the font library takes longer than drawing a text, so answers are kept.
std::optional<Face> installedFace(const std::string& postScriptName) {
  Known& all = known();
  const std::lock_guard lock(all.mutex);
  const auto found = all.faces.find(postScriptName);
  if (found != all.faces.end()) return found->second;
  return all.faces.emplace(postScriptName, findFace(postScriptName)).first->second;
}

std::set<std::string> installedFiles() {
  std::set<std::string> files;
  forEachFace(FcPatternCreate(), [&](const FcPattern* face) { files.insert(text(face, FC_FILE)); });
  return files;
}

/// The font library and Qt each know the fonts of the time when they were first asked.
void lookForNewFonts() {
  Known& all = known();
  const std::lock_guard lock(all.mutex);
  all.looked = std::chrono::steady_clock::now();
  if (FcConfigUptoDate(nullptr) == FcTrue) return;
  const std::set<std::string> before = installedFiles();
  FcInitReinitialize();
  all.faces.clear();
  for (const std::string& file : installedFiles()) {
    if (!before.contains(file)) QFontDatabase::addApplicationFont(QString::fromStdString(file));
  }
}

std::vector<FontFamily> families() {
  struct Regular {
    std::string postScriptName;
    int distance;
  };
  lookForNewFonts();
  std::map<std::string, Regular> regulars;
  forEachFace(FcPatternCreate(), [&](const FcPattern* face) {
    const std::string family = text(face, FC_FAMILY);
    const std::string name = text(face, FC_POSTSCRIPT_NAME);
    if (family.empty() || name.empty() || !hasLetters(face)) return;
    const int distance = distanceFromRegular(face);
    const auto [known, isNew] = regulars.try_emplace(family, Regular{name, distance});
    if (!isNew && distance < known->second.distance) known->second = {name, distance};
  });
  std::vector<FontFamily> result;
  result.reserve(regulars.size());
  for (auto& [family, regular] : regulars)
    result.push_back({family, std::move(regular.postScriptName)});
  return result;
}

void setSize(QFont& face, const Font& font, double pixelsPerPoint) {
  face.setHintingPreference(QFont::PreferNoHinting);
  face.setPixelSize(std::max(
      1, static_cast<int>(std::lround(std::clamp(font.size, 0.0, largestSize) * pixelsPerPoint))));
}

} // namespace

Fonts makeFonts() {
  return {.families = families};
}

void lookForFont(const std::string& postScriptName) {
  constexpr std::chrono::seconds pause(1);
  if (postScriptName.empty() || installedFace(postScriptName)) return;
  const auto looked = [] {
    const std::lock_guard lock(known().mutex);
    return known().looked;
  }();
  if (std::chrono::steady_clock::now() - looked >= pause) lookForNewFonts();
}

QFont faceOf(const Font& font, double pixelsPerPoint) {
  QFont face(QString::fromLatin1(systemFamily));
  const auto named = font.name.empty() ? std::nullopt : installedFace(font.name);
  if (named) {
    face = QFont(named->family);
    face.setStyle(named->slant);
  }
  if (named && font.weight == Font().weight) {
    face.setStyleName(named->style);
    face.setWeight(static_cast<QFont::Weight>(named->weight));
  } else {
    face.setWeight(static_cast<QFont::Weight>(font.weight));
  }
  setSize(face, font, pixelsPerPoint);
  return face;
}

QFont emojiFaceOf(const Font& font, double pixelsPerPoint) {
  const QString family = QString::fromLatin1(emojiFamily);
  QFont face(family);
  // A selector that the font has no glyph for would be looked for in others, and part a picture.
  if (QFontDatabase::hasFamily(family)) face.setStyleStrategy(QFont::NoFontMerging);
  setSize(face, font, pixelsPerPoint);
  return face;
}

} // namespace vitrelle::host
