#include "host/drawing/Fonts.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

namespace vitrelle::host {

namespace {

constexpr const char* systemFamily = "Inter";

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
                       FC_SYMBOL, FC_LANG, FC_FONTFORMAT, nullptr));
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

/// Whether it has what a language is written with; fonts of signs and pictures have not.
bool hasLetters(const FcPattern* face) {
  FcBool symbol = FcFalse;
  if (FcPatternGetBool(face, FC_SYMBOL, 0, &symbol) == FcResultMatch && symbol == FcTrue)
    return false;
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
  return slant + std::abs(number(face, FC_WEIGHT, FC_WEIGHT_REGULAR) - FC_WEIGHT_REGULAR) +
         std::abs(number(face, FC_WIDTH, FC_WIDTH_NORMAL) - FC_WIDTH_NORMAL);
}

struct Face {
  QString family;
  QString style;
};

std::optional<Face> findFace(const std::string& postScriptName) {
  std::optional<Face> found;
  FcPattern* wanted = FcPatternCreate();
  FcPatternAddString(wanted, FC_POSTSCRIPT_NAME,
                     reinterpret_cast<const FcChar8*>(postScriptName.c_str()));
  forEachFace(wanted, [&](const FcPattern* face) {
    if (found || text(face, FC_POSTSCRIPT_NAME) != postScriptName) return;
    found = Face{QString::fromStdString(text(face, FC_FAMILY)),
                 QString::fromStdString(text(face, FC_STYLE))};
  });
  return found;
}

/// Asking the font library takes longer than drawing a text, so answers are kept.
std::optional<Face> installedFace(const std::string& postScriptName) {
  static std::mutex mutex;
  static std::map<std::string, std::optional<Face>> known;
  const std::lock_guard lock(mutex);
  const auto found = known.find(postScriptName);
  if (found != known.end()) return found->second;
  return known.emplace(postScriptName, findFace(postScriptName)).first->second;
}

std::vector<FontFamily> families() {
  struct Regular {
    std::string postScriptName;
    int distance;
  };
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

} // namespace

Fonts makeFonts() {
  return {.families = families};
}

QFont faceOf(const Font& font, double pixelsPerPoint) {
  QFont face(QString::fromLatin1(systemFamily));
  const auto named = font.name.empty() ? std::nullopt : installedFace(font.name);
  if (named) {
    face = QFont(named->family);
    face.setStyleName(named->style);
  } else {
    face.setWeight(static_cast<QFont::Weight>(font.weight));
  }
  face.setHintingPreference(QFont::PreferNoHinting);
  face.setPixelSize(std::max(
      1, static_cast<int>(std::lround(std::clamp(font.size, 0.0, largestSize) * pixelsPerPoint))));
  return face;
}

} // namespace vitrelle::host
