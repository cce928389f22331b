// Every screen that can be opened by its type name, and what draws it: the one list of them.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace vitrelle::ui {

struct ScreenEntry {
  Q_GADGET
  QML_VALUE_TYPE(screenEntry)
  Q_PROPERTY(QString page MEMBER page CONSTANT)
  Q_PROPERTY(QString family MEMBER family CONSTANT)

 public:
  QString name;   ///< type name
  QString page;   ///< "root", "newStyle", "changeStyle", "perspectiveZoom", "fontPicker",
                  ///< "storedFont", "symbolPicker", "dateText", "solidBackground"; of a family
                  ///< "entry", "setup", "second", "gallery", "assign" or "preview"
  QString family; ///< by its name in the family table; empty for other screens
};

QList<ScreenEntry> screenTable();

} // namespace vitrelle::ui
