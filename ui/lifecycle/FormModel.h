// The rows of a form as a QML model. Rows come and go with what the others hold.
#pragma once

#include "core/lifecycle/StyleEditor.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace vitrelle::ui {

class FormModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("an editor has it")

 public:
  explicit FormModel(StyleEditor& editor) : editor_(editor) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// What the user set the control of the index to. The view then shows what the form holds.
  Q_INVOKABLE void setValue(int index, const QVariant& value);
  void refresh();

 private:
  StyleEditor& editor_;
  std::vector<ShownRow> rows_;
};

} // namespace vitrelle::ui
