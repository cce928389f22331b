#include "ui/centre/ExportScreen.h"

namespace vitrelle::ui {

namespace {

SharedItem itemOf(const IEActiveSheet& sheet) {
  if (!sheet.image || sheet.image->activityItems.empty()) return {};
  const ActivityItem& item = sheet.image->activityItems.front();
  const Result<Data> bytes = item.image.fileData();
  if (!bytes) return {};
  return {.fileName = QString::fromStdString(item.fileName),
          .mediaType = QStringLiteral("image/png"),
          .bytes = QByteArray(reinterpret_cast<const char*>(bytes->data()),
                              static_cast<qsizetype>(bytes->size())),
          .preview = item.image};
}

} // namespace

ExportScreen::ExportScreen(const Platform& platform)
    : screen_(platform),
      view_(screen_.onChange([this] { follow(); })),
      reloads_(platform.widgetCenter.watchReloads([this] {
        ++revision_;
        follow();
      })),
      phones_(platform.phoneBook.watch([this](const PhoneChoice&) { follow(); })) {
  follow();
}

void ExportScreen::follow() {
  QVariantList rows;
  for (const auto& row : screen_.rows()) {
    QStringList stems;
    for (const SliceName& slice : row)
      stems += QString::fromStdString(slice.stem);
    rows.append(QVariant(stems));
  }
  const auto& sheet = screen_.activeSheet();
  // What was shared is still to be seen while the sheet goes away.
  if (sheet && !sheetShown_) shared_ = itemOf(*sheet);
  sheetShown_ = sheet.has_value();
  Q_EMIT changed();
  if (rows == rows_) return;
  rows_ = rows;
  Q_EMIT rowsChanged();
}

} // namespace vitrelle::ui
