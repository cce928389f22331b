// FaceBench [FILE...]: faces beside plain Qt doing the same drawing, and the Text family's pages
// over styles made of the given screenshots, if any: the gallery of twelve from its opening to its
// last picture, beside the same grid in plain QML, and a keystroke to the redrawn preview.
#include "bench/Timing.h"
#include "core/drawing/Shapes.h"
#include "core/families/text/CustomTextPreviewView.h"
#include "core/slicing/ImageCropper.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"
#include "host/Host.h"
#include "host/desktop/QtLoop.h"
#include "host/drawing/DrawingProcess.h"
#include "ui/Shell.h"
#include "ui/Words.h"
#include "ui/lifecycle/FamilyScreen.h"
#include "ui/parts/StoredPicture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QPainter>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QSGRendererInterface>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextOption>

#include <cstdio>
#include <numbers>
#include <vector>

namespace {

using namespace vitrelle;

constexpr int styles = 12;
constexpr int rounds = 15;
constexpr const char* words = "Good morning, sunshine";

double milliseconds(const QElapsedTimer& clock) {
  return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

QFont interFace(double pixels) {
  QFont font(QStringLiteral("Inter"));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setPixelSize(static_cast<int>(pixels));
  return font;
}

void drawOurs(const Platform& platform, bool shadow, const PointSize& frame, double scale) {
  const View view =
      CustomTextPreviewView{.text = words, .fontName = "", .textSize = 24, .showShadow = shadow}
          .view();
  const DisplayList list = layOut(view, frame, platform.drawing);
  const auto image = platform.drawing.render({&list, 1}, {0, 0, frame.width, frame.height}, scale);
  if (!image) std::exit(1);
}

/// The same words in the middle of a transparent picture, drawn by the painter.
void drawPlain(const PointSize& frame, double scale) {
  QImage image(QSizeF(frame.width * scale, frame.height * scale).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(interFace(24 * scale));
  painter.setPen(Qt::white);
  painter.drawText(image.rect(), Qt::AlignCenter | Qt::TextWordWrap, QString::fromLatin1(words));
}

/// With the shadow that Qt's own effect makes.
void drawPlainShadowed(const PointSize& frame, double scale) {
  QGraphicsScene scene;
  auto* item = new QGraphicsTextItem;
  item->setFont(interFace(24 * scale));
  item->setDefaultTextColor(Qt::white);
  item->setTextWidth(frame.width * scale);
  QTextOption centred(Qt::AlignCenter);
  item->document()->setDefaultTextOption(centred);
  item->setPlainText(QString::fromLatin1(words));
  auto* effect = new QGraphicsDropShadowEffect;
  effect->setOffset(0, 0);
  effect->setBlurRadius(4 * 5 * scale); // reaches as far as a deviation of 5 points
  effect->setColor(QColor(0, 0, 0, 84));
  item->setGraphicsEffect(effect);
  scene.addItem(item);
  QImage image(QSizeF(frame.width * scale, frame.height * scale).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  scene.render(&painter, image.rect(), image.rect());
}

constexpr int bars = 60;
constexpr double turn = 2 * std::numbers::pi / bars;

/// The minutes of a clock: each a bar that is turned about the middle.
DisplayList turnedBars(const Platform& platform, const PointSize& frame) {
  std::vector<View> minutes;
  for (int i = 0; i < bars; ++i) {
    const View bar = framed(filled(shapes::rectangle, {1, 1, 1, 1}), 2, 8);
    minutes.push_back(rotated(vstack({bar, spacer()}, Place::centre, 0), i * turn));
  }
  return layOut(zstack(minutes), frame, platform.drawing);
}

void drawPlainBars(const PointSize& frame, double scale) {
  QImage image(QSizeF(frame.width * scale, frame.height * scale).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  painter.translate(frame.width / 2, frame.height / 2);
  for (int i = 0; i < bars; ++i) {
    painter.fillRect(QRectF(-1, -frame.height / 2, 2, 8), Qt::white);
    painter.rotate(360.0 / bars);
  }
}

Platform platformOver(const QString& home) {
  Platform platform = host::makePlatform(
      {.home = host::HomeFolder(home.toStdString()), .phone = {}, .dark = false, .verbose = false},
      host::makeQtLoop());
  host::useDrawing(platform);
  return platform;
}

void makeStyles(const Platform& platform, const QStringList& screenshots) {
  for (int style = 0; style < screenshots.size(); ++style) {
    const auto image = platform.images.load(screenshots[style].toStdString());
    if (!image) std::exit(1);
    ImageCropper(platform).store(*image, lightStyle, style);
    ImageCropper(platform).store(*image, darkStyle, style);
  }
  const GroupStore store(platform);
  store.set(keys::amountOfConfigs, static_cast<std::int64_t>(screenshots.size()));
  store.set(keys::lastUsedAppVersion, *platform.bundle.shortVersion());
}

/// So many text styles, linked to the wallpapers as far as those go.
void storeRecords(const Platform& platform, int count, std::int64_t wallpapers) {
  std::vector<textWidgetData> records;
  for (int i = 0; i < count; ++i) {
    textWidgetData record = newRecord(families::text, records);
    record.textWidgetText = words;
    record.textLinkedConfig = i < wallpapers ? i : noLinkedConfig;
    records.push_back(record);
  }
  GroupStore(platform).saveRecords(families::text, records);
}

QQuickItem* find(QQuickItem* item, const QString& objectName) {
  if (item->objectName() == objectName) return item;
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = find(child, objectName)) return found;
  }
  return nullptr;
}

int readyPictures(const QQuickItem* item) {
  const auto* picture = qobject_cast<const ui::StoredPicture*>(item);
  int count = picture != nullptr && picture->isReady() ? 1 : 0;
  for (const QQuickItem* child : item->childItems())
    count += readyPictures(child);
  return count;
}

/// Runs the loop until a frame is on the screen in which it is so; how long that took.
template <class IsSo>
double untilFrame(QQuickWindow* window, IsSo isSo) {
  QElapsedTimer clock;
  clock.start();
  QEventLoop loop;
  double took = -1;
  const auto watch = QObject::connect(window, &QQuickWindow::frameSwapped, &loop, [&] {
    if (!isSo()) return window->update();
    took = milliseconds(clock);
    loop.quit();
  });
  window->update();
  loop.exec();
  QObject::disconnect(watch);
  return took;
}

struct Pages {
  double gallery;
  double keystroke;
};

Pages measurePages(const Platform& platform, int wallpapers) {
  storeRecords(platform, styles, wallpapers);
  ui::Shell shell(
      platform,
      {.screen = QStringLiteral("ModernCustomTextView"), .framed = false, .animated = false});
  if (!shell.open()) std::exit(1);
  QQuickItem* content = shell.window()->contentItem();
  untilFrame(shell.window(), [] { return true; });
  auto* family =
      find(content, QStringLiteral("familyPage"))->property("family").value<ui::FamilyScreen*>();
  const int before = readyPictures(content);
  family->tapGallery();
  const double gallery =
      untilFrame(shell.window(), [&] { return readyPictures(content) >= before + styles; });
  storeRecords(platform, 1, wallpapers); // twelve leave no room for the new one
  family->dismissSheet();
  family->tapCreate();
  untilFrame(shell.window(), [&] { return find(content, QStringLiteral("textField")) != nullptr; });
  auto* editor =
      find(content, QStringLiteral("setupPage"))->property("editor").value<ui::EditorScreen*>();
  std::vector<double> times;
  for (int i = 1; i < 20; ++i) {
    editor->form()->setValue(0, QString::fromLatin1(words).left(i));
    times.push_back(untilFrame(shell.window(), [] { return true; }));
  }
  std::sort(times.begin(), times.end());
  return {gallery, times[times.size() / 2]};
}

/// The same grid in plain QML, whose pictures come from the same files.
double measurePlainGallery(const QString& folder, int screenshots) {
  QQmlApplicationEngine engine;
  engine.loadData(QStringLiteral(R"(
import QtQuick
Window {
    id: window
    property bool shown: false
    property int ready: 0
    width: 393; height: 852; visible: true
    Loader {
        active: window.shown
        sourceComponent: Grid {
            columns: 2
            spacing: 21.8
            Repeater {
                model: %1
                Image {
                    required property int index
                    width: 157.2; height: 157.2
                    sourceSize: Qt.size(158, 158)
                    asynchronous: true
                    cache: false
                    source: "file://%2/" + (index < %3 ? index : 0) + "topLeftSmall.png"
                    onStatusChanged: if (status === Image.Ready) ++window.ready
                    Text {
                        anchors.centerIn: parent
                        width: 141
                        wrapMode: Text.Wrap
                        color: "white"
                        font.family: "Inter"
                        font.pixelSize: 18
                        text: "%4"
                    }
                }
            }
        }
    }
}
)")
                      .arg(styles)
                      .arg(folder)
                      .arg(screenshots)
                      .arg(QString::fromLatin1(words))
                      .toUtf8());
  auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
  untilFrame(window, [] { return true; });
  window->setProperty("shown", true);
  return untilFrame(window, [&] { return window->property("ready").toInt() == styles; });
}

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QQuickStyle::setStyle(QStringLiteral("Basic"));
  const QApplication application(argc, argv);
  QTranslator translator;
  ui::installWords(translator, QLocale::c());
  const QTemporaryDir home;
  const Platform platform = platformOver(home.path());

  constexpr PointSize frame{158, 158};
  const auto faces = bench::medians(
      41, {[&] { drawOurs(platform, true, frame, 3); }, [&] { drawPlainShadowed(frame, 3); },
           [&] { drawOurs(platform, false, frame, 3); }, [&] { drawPlain(frame, 3); }});
  std::printf("face at 3x with its shadow %.2f ms, plain Qt %.2f ms, %.2f times as fast\n",
              faces[0], faces[1], faces[1] / faces[0]);
  std::printf("face at 3x without %.2f ms, plain Qt %.2f ms, %.2f times as fast\n", faces[2],
              faces[3], faces[3] / faces[2]);

  const DisplayList minutes = turnedBars(platform, frame);
  const DisplayList faded{{DrawnGroup{.opacity = 0.5, .items = minutes}}};
  const auto drawn = [&](const DisplayList& list) {
    if (!platform.drawing.render({&list, 1}, {0, 0, frame.width, frame.height}, 3)) std::exit(1);
  };
  const auto turned = bench::medians(
      41, {[&] { drawn(minutes); }, [&] { drawn(faded); }, [&] { drawPlainBars(frame, 3); }});
  std::printf("%d turned bars at 3x %.2f ms, all faded %.2f ms, plain Qt %.2f ms, ratio %.2f\n",
              bars, turned[0], turned[1], turned[2], turned[0] / turned[2]);

  const QStringList screenshots = QCoreApplication::arguments().mid(1);
  if (screenshots.isEmpty()) return 0;
  makeStyles(platform, screenshots);
  const QString folder = QString::fromStdString(*platform.files.groupContainer());
  std::vector<double> galleries;
  std::vector<double> plain;
  std::vector<double> keystrokes;
  for (int round = 0; round < rounds; ++round) {
    const Pages pages = measurePages(platform, static_cast<int>(screenshots.size()));
    galleries.push_back(pages.gallery);
    keystrokes.push_back(pages.keystroke);
    plain.push_back(measurePlainGallery(folder, static_cast<int>(screenshots.size())));
  }
  std::printf("gallery of %d tiles %.1f ms, plain QML %.1f ms, ratio %.2f\n", styles,
              median(galleries), median(plain), median(galleries) / median(plain));
  std::printf("keystroke to the redrawn preview %.1f ms\n", median(keystrokes));
}
