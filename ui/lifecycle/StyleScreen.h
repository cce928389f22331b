// What every page of a family's flow is to QML: its name among the pages, and the family's words.
#pragma once

#include "core/lifecycle/StyleFamily.h"
#include "ui/lifecycle/FamilyWords.h"

#include <QObject>
#include <QQmlEngine>

namespace vitrelle::ui {

class StyleScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the flow makes it")
  /// "kinds", "editor", "gallery", "assign" or "preview".
  Q_PROPERTY(QString page READ page CONSTANT)
  Q_PROPERTY(vitrelle::ui::FamilyWords words READ words CONSTANT)

 public:
  StyleScreen(const StyleFamily& family, const char* page) : family_(family), page_(page) {}

  QString page() const { return QString::fromLatin1(page_); }
  FamilyWords words() const { return FamilyWords(family_.words()); }

 private:
  const StyleFamily& family_;
  const char* page_;
};

/// Leaves what was shown to those who still show it: a page that goes away is drawn to its end.
inline void leaveToQml(QObject* object) {
  QQmlEngine::setObjectOwnership(object, QQmlEngine::JavaScriptOwnership);
}

} // namespace vitrelle::ui
