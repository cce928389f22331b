#include "ui/slicing/IntakeScreen.h"

#include "core/slicing/PhoneChoices.h"
#include "ui/parts/GivenPictures.h"
#include "ui/parts/Notices.h"

#include <QStringList>

#include <utility>

namespace vitrelle::ui {

namespace {

QString marked(const std::string& phone, bool zoomed) {
  const QString name = QString::fromStdString(phone);
  return zoomed ? qtTrId("app.phone.isZoomed").arg(name) : name;
}

} // namespace

IntakeScreen::IntakeScreen(const Platform& platform, Notices& notices,
                           std::unique_ptr<WallpaperIntake> screen)
    : platform_(platform),
      notices_(notices),
      screen_(std::move(screen)),
      incoming_(platform,
                [this](InterfaceStyle style, const Image& picture) {
                  if (choose(style == darkStyle)) take(picture);
                }),
      view_(screen_->onChange([this] { Q_EMIT changed(); })),
      question_(incoming_.onChange([this] { Q_EMIT changed(); })) {}

QString IntakeScreen::askedSize() const {
  const PixelSize& size = incoming_.size();
  return QStringLiteral("%1\u00A0×\u00A0%2").arg(size.width).arg(size.height);
}

QList<ScreenshotPhones> IntakeScreen::origins() const {
  QList<ScreenshotPhones> origins;
  for (const ScreenshotOrigin& origin : incoming_.origins()) {
    const ScreenshotOrigin::Phone& first = origin.phones.front();
    QStringList others; // marked where they are unlike the first
    for (auto other = origin.phones.begin() + 1; other != origin.phones.end(); ++other)
      others += marked(other->name, other->zoomed && !first.zoomed);
    QStringList notes;
    if (!others.isEmpty()) notes += qtTrId("app.phone.or").arg(others.join(u", "));
    if (!origin.isMeasured) notes += qtTrId("app.phone.unmeasured");
    origins += {marked(first.name, first.zoomed), notes.join(u'\n')};
  }
  return origins;
}

QString IntakeScreen::presentPhone() const {
  const PhoneChoice present = platform_.phoneBook.current();
  return marked(phoneName(platform_, present.identifier), present.zoomed);
}

void IntakeScreen::appear() {
  appeared_ = true;
  screen_->appear();
}

void IntakeScreen::disappear() {
  incoming_.cancel();
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
  const Result<Image> image = givenFile(platform_, file);
  if (!image) return refuse(image.failure());
  receive(*image);
  return true;
}

void IntakeScreen::receive(const Image& picture) {
  if (const auto style = screen_->interfaceStyle())
    incoming_.receive(*style, picture);
  else
    take(picture); // which is for no half
}

void IntakeScreen::answer(int origin) {
  const Status kept = incoming_.pick(static_cast<std::size_t>(origin));
  if (!kept) {
    const auto& [what, why] = kept.failure();
    notices_.show(qtTrId("app.store.readOnly").arg(QString::fromStdString(what + ": " + why)));
  } else if (notices_.text().isEmpty()) {
    notices_.show(qtTrId("app.phone.now").arg(presentPhone()), Notices::Done);
  }
}

void IntakeScreen::cancelQuestion() {
  incoming_.cancel();
  take({});
}

void IntakeScreen::paste(bool dark) {
  if (!choose(dark)) return;
  const Offer offer = clipboardOffer();
  if (const QList<QUrl> files = offeredFiles(offer); !files.isEmpty()) {
    pick(files.constFirst());
    return;
  }
  const auto picture = givenPicture(platform_, offer);
  if (picture)
    receive(*picture);
  else
    refuse(picture.failure());
}

void IntakeScreen::pasteAll() {
  if (const QList<QUrl> files = offeredFiles(clipboardOffer()); !files.isEmpty())
    takeFiles(files);
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
