// The wallpaper styles as a list that QML can draw: a card each.
#pragma once

#include "core/app/ModernContentView.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace vitrelle::ui {

class StyleList final : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")

 public:
  explicit StyleList(const ModernContentView& screen) : screen_(screen) {}

  enum Role { styleNumber = Qt::UserRole, selected, revision };

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// Reads the screen's list again. Cards of styles that are still there stay.
  void refresh();

 private:
  struct Card {
    StyleNumber number;
    bool selected;
    VitrelleConfigData style;
    int revision; ///< of the pictures
  };
  const ModernContentView& screen_;
  std::vector<Card> cards_;
};

} // namespace vitrelle::ui
