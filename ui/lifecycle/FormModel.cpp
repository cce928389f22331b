#include "ui/lifecycle/FormModel.h"

#include "ui/lifecycle/FamilyWords.h"

#include <QColor>

#include <algorithm>
#include <limits>

namespace vitrelle::ui {

namespace {

enum Role { titleRole = Qt::UserRole, controlRole, valueRole, lowestRole, highestRole };

QVariant qValue(const FormValue& value) {
  struct Converter {
    QVariant operator()(bool on) const { return on; }
    /// A number in QML has 32 bits, one in a damaged record may have more.
    QVariant operator()(std::int64_t number) const {
      constexpr std::int64_t largest = std::numeric_limits<int>::max();
      return static_cast<int>(std::clamp(number, -largest, largest));
    }
    QVariant operator()(const std::string& words) const { return QString::fromStdString(words); }
    QVariant operator()(const Colour& colour) const {
      return QColor::fromRgbF(colour.red, colour.green, colour.blue, colour.alpha);
    }
  };
  return std::visit(Converter(), value);
}

/// A value of the same kind as the row's.
FormValue formValue(const QVariant& value, const FormValue& like) {
  if (std::holds_alternative<bool>(like)) return value.toBool();
  if (std::holds_alternative<std::int64_t>(like))
    return static_cast<std::int64_t>(value.toLongLong());
  if (std::holds_alternative<std::string>(like)) return value.toString().toStdString();
  const auto colour = value.value<QColor>();
  return Colour{colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF()};
}

} // namespace

int FormModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant FormModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const ShownRow& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
  case titleRole:
    return qText(row.title);
  case controlRole:
    return static_cast<int>(row.control);
  case valueRole:
    return qValue(row.value);
  case lowestRole:
    return static_cast<int>(row.range.lowest);
  case highestRole:
    return static_cast<int>(row.range.highest);
  default:
    return {};
  }
}

QHash<int, QByteArray> FormModel::roleNames() const {
  return {{titleRole, "title"},
          {controlRole, "control"},
          {valueRole, "value"},
          {lowestRole, "lowest"},
          {highestRole, "highest"}};
}

void FormModel::setValue(int index, const QVariant& value) {
  if (index < 0 || index >= rowCount()) return;
  const ShownRow row = rows_[static_cast<std::size_t>(index)];
  editor_.setValue(row.row, formValue(value, row.value));
}

void FormModel::refresh() {
  std::vector<ShownRow> now = editor_.rows();
  const bool sameRows = std::ranges::equal(now, rows_, {}, &ShownRow::row, &ShownRow::row);
  if (!sameRows) {
    beginResetModel();
    rows_ = std::move(now);
    endResetModel();
    return;
  }
  rows_ = std::move(now);
  if (!rows_.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {valueRole});
}

} // namespace vitrelle::ui
