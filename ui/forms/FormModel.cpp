#include "ui/forms/FormModel.h"

#include "ui/parts/QtText.h"

#include <QColor>

#include <algorithm>
#include <limits>
#include <utility>

namespace vitrelle::ui {

namespace {

enum Role {
  titleRole = Qt::UserRole,
  controlRole,
  valueRole,
  lowestRole,
  highestRole,
  optionsRole,
  chosenRole,
  labelRole,
  dividedRole,
  symbolRole,
};

QVariantList qOptions(const FormRow& row) {
  QVariantList options;
  for (const FormOption& option : row.options) {
    options += QVariantMap{{QStringLiteral("symbol"), qText(option.symbol)},
                           {QStringLiteral("words"), qText(option.words)}};
  }
  return options;
}

/// -1 for a value that is none of the options.
int chosenOption(const ShownRow& shown) {
  const auto found = std::ranges::find(shown.row.options, shown.value, &FormOption::value);
  return found == shown.row.options.end() ? -1
                                          : static_cast<int>(found - shown.row.options.begin());
}

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
  const ShownRow& shown = rows_[static_cast<std::size_t>(index.row())];
  const FormRow& row = shown.row;
  switch (role) {
  case titleRole:
    return qText(row.title);
  case controlRole:
    return controlName(row.control);
  case valueRole:
    return qValue(shown.value);
  case lowestRole:
    return static_cast<int>(row.range.lowest);
  case highestRole:
    return static_cast<int>(row.range.highest);
  case optionsRole:
    return qOptions(row);
  case chosenRole:
    return chosenOption(shown);
  case labelRole:
    return qText(row.label);
  case dividedRole:
    return row.isBehindDivider;
  case symbolRole:
    return qText(row.symbol);
  default:
    return {};
  }
}

QHash<int, QByteArray> FormModel::roleNames() const {
  return {{titleRole, "title"},   {controlRole, "control"}, {valueRole, "value"},
          {lowestRole, "lowest"}, {highestRole, "highest"}, {optionsRole, "options"},
          {chosenRole, "chosen"}, {labelRole, "label"},     {dividedRole, "divided"},
          {symbolRole, "symbol"}};
}

const ShownRow* FormModel::rowAt(int index) const {
  return index < 0 || index >= rowCount() ? nullptr : &rows_[static_cast<std::size_t>(index)];
}

void FormModel::setValue(int index, const QVariant& value) {
  const ShownRow* shown = rowAt(index);
  if (shown != nullptr) editor_.setValue(shown->index, formValue(value, shown->value));
}

void FormModel::choose(int index, int option) {
  const ShownRow* shown = rowAt(index);
  if (shown == nullptr || option < 0 || !std::cmp_less(option, shown->row.options.size())) return;
  const FormValue value = shown->row.options[static_cast<std::size_t>(option)].value;
  editor_.setValue(shown->index, value);
}

void FormModel::press(int index) {
  if (const ShownRow* shown = rowAt(index)) editor_.press(shown->index);
}

void FormModel::openSheet(int index) {
  if (const ShownRow* shown = rowAt(index)) editor_.openSheet(shown->index);
}

void FormModel::refresh() {
  // Both lists are in the order of the form.
  std::size_t at = 0;
  for (ShownRow& row : editor_.rows()) {
    while (at < rows_.size() && rows_[at].index < row.index)
      removeRow(at);
    if (at < rows_.size() && rows_[at].index == row.index) {
      rows_[at] = std::move(row);
    } else {
      insertRow(at, std::move(row));
    }
    ++at;
  }
  while (at < rows_.size())
    removeRow(at);
  if (!rows_.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {valueRole, chosenRole});
}

void FormModel::insertRow(std::size_t at, ShownRow row) {
  const int place = static_cast<int>(at);
  beginInsertRows({}, place, place);
  rows_.insert(rows_.begin() + place, std::move(row));
  endInsertRows();
}

void FormModel::removeRow(std::size_t at) {
  const int place = static_cast<int>(at);
  beginRemoveRows({}, place, place);
  rows_.erase(rows_.begin() + place);
  endRemoveRows();
}

QString controlName(FormControl control) {
  switch (control) {
  case FormControl::text:
    return QStringLiteral("text");
  case FormControl::font:
    return QStringLiteral("font");
  case FormControl::symbol:
    return QStringLiteral("symbol");
  case FormControl::stepper:
    return QStringLiteral("stepper");
  case FormControl::toggle:
    return QStringLiteral("toggle");
  case FormControl::colourWell:
    return QStringLiteral("colourWell");
  case FormControl::segments:
    return QStringLiteral("segments");
  case FormControl::menu:
    return QStringLiteral("menu");
  case FormControl::note:
    return QStringLiteral("note");
  case FormControl::button:
    return QStringLiteral("button");
  }
  return {};
}

} // namespace vitrelle::ui
