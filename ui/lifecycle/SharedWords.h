// The words that all families share, as one QML singleton.
#pragma once

#include "core/colour/SuggestedColours.h"
#include "core/lifecycle/FamilyTable.h"
#include "core/lifecycle/Form.h"
#include "core/pickers/FontPicker.h"
#include "ui/lifecycle/FamilyWords.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace vitrelle::ui {

class SharedWords : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QString create READ create CONSTANT)
  Q_PROPERTY(QString gallery READ gallery CONSTANT)
  Q_PROPERTY(QString preview READ preview CONSTANT)
  Q_PROPERTY(QString closeSymbol READ closeSymbol CONSTANT)
  Q_PROPERTY(QString kindsTitle READ kindsTitle CONSTANT)
  Q_PROPERTY(QString kindsSymbol READ kindsSymbol CONSTANT)
  Q_PROPERTY(QString kindsNote READ kindsNote CONSTANT)
  Q_PROPERTY(QString setupTitle READ setupTitle CONSTANT)
  Q_PROPERTY(QString setupSymbol READ setupSymbol CONSTANT)
  Q_PROPERTY(QString previewHeading READ previewHeading CONSTANT)
  Q_PROPERTY(QString saveAndContinue READ saveAndContinue CONSTANT)
  Q_PROPERTY(QString saveAndExit READ saveAndExit CONSTANT)
  Q_PROPERTY(QString gallerySymbol READ gallerySymbol CONSTANT)
  Q_PROPERTY(QString galleryHint READ galleryHint CONSTANT)
  Q_PROPERTY(QString galleryHintSymbol READ galleryHintSymbol CONSTANT)
  Q_PROPERTY(QString tickSymbol READ tickSymbol CONSTANT)
  Q_PROPERTY(QString editItem READ editItem CONSTANT)
  Q_PROPERTY(QString editSymbol READ editSymbol CONSTANT)
  Q_PROPERTY(QString assignSymbol READ assignSymbol CONSTANT)
  Q_PROPERTY(QString assignHeading READ assignHeading CONSTANT)
  Q_PROPERTY(QString assignPicker READ assignPicker CONSTANT)
  Q_PROPERTY(QString previewButton READ previewButton CONSTANT)
  Q_PROPERTY(QString suggestedColours READ suggestedColours CONSTANT)
  Q_PROPERTY(QString suggestionsHint READ suggestionsHint CONSTANT)
  Q_PROPERTY(QString suggestionsHintSymbol READ suggestionsHintSymbol CONSTANT)
  Q_PROPERTY(QString currentFont READ currentFont CONSTANT)

 public:
  using QObject::QObject;

  static QString create() { return qText(familyWords::create); }
  static QString gallery() { return qText(familyWords::gallery); }
  static QString preview() { return qText(familyWords::preview); }
  static QString closeSymbol() { return qText(familyWords::closeSymbol); }
  static QString kindsTitle() { return qText(familyWords::kindsTitle); }
  static QString kindsSymbol() { return qText(familyWords::kindsSymbol); }
  static QString kindsNote() { return qText(familyWords::kindsNote); }
  static QString setupTitle() { return qText(familyWords::setupTitle); }
  static QString setupSymbol() { return qText(familyWords::setupSymbol); }
  static QString previewHeading() { return qText(familyWords::previewHeading); }
  static QString saveAndContinue() { return qText(familyWords::saveAndContinue); }
  static QString saveAndExit() { return qText(familyWords::saveAndExit); }
  static QString gallerySymbol() { return qText(familyWords::gallerySymbol); }
  static QString galleryHint() { return qText(familyWords::galleryHint); }
  static QString galleryHintSymbol() { return qText(familyWords::galleryHintSymbol); }
  static QString tickSymbol() { return qText(familyWords::tickSymbol); }
  static QString editItem() { return qText(familyWords::editItem); }
  static QString editSymbol() { return qText(familyWords::editSymbol); }
  static QString assignSymbol() { return qText(familyWords::assignSymbol); }
  static QString assignHeading() { return qText(familyWords::assignHeading); }
  static QString assignPicker() { return qText(familyWords::assignPicker); }
  static QString previewButton() { return qText(familyWords::previewButton); }
  static QString suggestedColours() { return qText(SuggestedColours::heading); }
  static QString suggestionsHint() { return qText(SuggestedColours::hint); }
  static QString suggestionsHintSymbol() { return qText(SuggestedColours::hintSymbol); }
  /// What a row shows for a font's name.
  Q_INVOKABLE static QString fontWords(const QString& name) {
    return qText(vitrelle::fontWords(name.toStdString()));
  }
  static QString currentFont() { return qText(ModernFontPicker::heading); }
};

} // namespace vitrelle::ui
