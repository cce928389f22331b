#include "ui/slicing/IntakeScreen.h"

#include "ui/parts/Notices.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <utility>

namespace vitrelle::ui {

namespace {

Image imageOf(const QImage& picture) {
  const auto pixels =
      std::make_shared<const QImage>(picture.convertToFormat(QImage::Format_RGBA8888));
  return Image(Bitmap{.size = {pixels->width(), pixels->height()},
                      .bytesPerRow = static_cast<std::size_t>(pixels->bytesPerLine()),
                      .pixels = pixels->constBits(),
                      .opaque = !picture.hasAlphaChannel(),
                      .owner = pixels});
}

} // namespace

IntakeScreen::IntakeScreen(const Platform& platform, Notices& notices,
                           std::unique_ptr<WallpaperIntake> screen)
    : platform_(platform),
      notices_(notices),
      screen_(std::move(screen)),
      view_(screen_->onChange([this] { Q_EMIT changed(); })) {}

void IntakeScreen::appear() {
  appeared_ = true;
  screen_->appear();
}

void IntakeScreen::disappear() {
  if (std::exchange(appeared_, false)) screen_->disappear();
}

void IntakeScreen::tap(qreal x) {
  screen_->tap(x);
  tellObstacle();
}

bool IntakeScreen::choose(bool dark) {
  screen_->choose(dark ? darkStyle : lightStyle);
  return !tellObstacle();
}

bool IntakeScreen::tellObstacle() const {
  if (!screen_->obstacle()) return false;
  const auto& [what, why] = *screen_->obstacle();
  notices_.show(qtTrId("app.store.readOnly").arg(QString::fromStdString(what + ": " + why)));
  return true;
}

bool IntakeScreen::pick(const QUrl& file) {
  const std::string path = file.toLocalFile().toStdString();
  const Result<Image> image = path.empty()
                                  ? Failure{file.toString().toStdString(), "it is no local file"}
                                  : platform_.images.load(path);
  if (!image) return refuse(image.failure());
  if (const auto bitmap = image->bitmap(); !bitmap) return refuse(bitmap.failure());
  take(*image);
  return true;
}

void IntakeScreen::paste(bool dark) {
  if (!choose(dark)) return;
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data != nullptr && data->hasUrls() && !data->urls().isEmpty()) {
    pick(data->urls().constFirst());
    return;
  }
  const QImage picture = QGuiApplication::clipboard()->image();
  if (picture.isNull())
    refuse({"the clipboard", "it holds no picture"});
  else
    take(imageOf(picture));
}

void IntakeScreen::pasteAll() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data != nullptr && data->hasUrls() && !data->urls().isEmpty())
    takeFiles(data->urls());
  else
    paste(false);
}

void IntakeScreen::takeFiles(const QList<QUrl>& files) {
  const auto isDark = [&](qsizetype index) {
    return files[index].fileName().contains(u"dark", Qt::CaseInsensitive);
  };
  const qsizetype count = files.size();
  if (count > 2) return notices_.show(qtTrId("app.intake.tooMany"));
  bool firstIsDark = count > 0 && isDark(0);
  if (count == 2 && firstIsDark && isDark(1)) firstIsDark = false;
  for (qsizetype i = 0; i < count; ++i) {
    // What is told of one must not be taken back by the next.
    if (!choose(firstIsDark != (i == 1)) || !pick(files[i])) return;
  }
}

void IntakeScreen::take(const std::optional<Image>& picture) {
  if (picture && notices_.kind() == Notices::Refusal) notices_.dismiss();
  ++revision_;
  screen_->pick(picture);
}

bool IntakeScreen::refuse(const Failure& failure) {
  take({});
  const auto words = [](const std::string& text) { return QString::fromStdString(text); };

  notices_.show(qtTrId("app.unreadable").arg(words(failure.what + ": " + failure.why)));
  return false;
}

} // namespace vitrelle::ui
