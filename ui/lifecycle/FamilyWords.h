// The words of a family, and what stands behind its widgets, as QML values.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/FamilyTable.h"
#include "ui/parts/QtText.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <optional>

namespace vitrelle::ui {

struct FamilyWords {
  Q_GADGET
  QML_VALUE_TYPE(familyWords)
  Q_PROPERTY(QString name MEMBER name CONSTANT)
  /// Which leads into the family.
  Q_PROPERTY(QString firstScreen MEMBER firstScreen CONSTANT)
  Q_PROPERTY(QString entryTitle MEMBER entryTitle CONSTANT)
  Q_PROPERTY(QString entrySymbol MEMBER entrySymbol CONSTANT)
  Q_PROPERTY(QString galleryTitle MEMBER galleryTitle CONSTANT)
  Q_PROPERTY(QString assignItem MEMBER assignItem CONSTANT)
  Q_PROPERTY(QString assignTitle MEMBER assignTitle CONSTANT)
  Q_PROPERTY(QString secondTitle MEMBER secondTitle CONSTANT)
  Q_PROPERTY(QString secondSymbol MEMBER secondSymbol CONSTANT)

 public:
  explicit FamilyWords(const FamilyDescription& words)
      : name(qText(words.name)),
        firstScreen(qText(words.firstScreen())),
        entryTitle(qText(words.entryTitle)),
        entrySymbol(qText(words.entrySymbol)),
        galleryTitle(qText(words.galleryTitle)),
        assignItem(qText(words.assignItem)),
        assignTitle(qText(words.assignTitle)),
        secondTitle(qText(words.secondTitle)),
        secondSymbol(qText(words.secondSymbol)) {}
  FamilyWords() = default;

  QString name;
  QString firstScreen;
  QString entryTitle;
  QString entrySymbol;
  QString galleryTitle;
  QString assignItem;
  QString assignTitle;
  QString secondTitle;
  QString secondSymbol;
};

/// Which stored picture; style number -1 stands for the program's own.
struct BackdropName {
  Q_GADGET
  QML_VALUE_TYPE(backdropName)
  Q_PROPERTY(QString stem MEMBER stem CONSTANT)
  Q_PROPERTY(int styleNumber MEMBER styleNumber CONSTANT)
  Q_PROPERTY(bool dark MEMBER dark CONSTANT)

 public:
  QString stem;
  int styleNumber = -1;
  bool dark = false;

  static BackdropName of(const std::optional<SliceName>& slice) {
    if (!slice) return {};
    return {QString::fromStdString(slice->stem), static_cast<int>(slice->style.value),
            slice->appearance == darkStyle};
  }
  bool operator==(const BackdropName&) const = default;
};

} // namespace vitrelle::ui
