// The rows of a form as a QML model. Rows come and go with what the others hold, and those that
// stay are not made anew.
#pragma once

#include "core/lifecycle/StyleEditor.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <cstddef>
#include <vector>

namespace vitrelle::ui {

/// What QML knows a control by: "toggle".
QString controlName(FormControl control);

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
  /// Of a choice: which of its options is taken.
  Q_INVOKABLE void choose(int index, int option);
  /// What a button does.
  Q_INVOKABLE void press(int index);
  /// Opens the sheet on which the row's value is picked.
  Q_INVOKABLE void openSheet(int index);
  void refresh();

 private:
  const ShownRow* rowAt(int index) const;
  void insertRow(std::size_t at, ShownRow row);
  void removeRow(std::size_t at);

  StyleEditor& editor_;
  std::vector<ShownRow> rows_;
};

} // namespace vitrelle::ui
