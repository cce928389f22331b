// AppBench FILE...: the application over twelve styles made of the given screenshots. Its start, to
// the first frame with the first card's picture, beside an empty Qt Quick window started the same
// way; the filling of its list; and the frames of its pager.
#include "bench/Timing.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"
#include "host/Host.h"
#include "host/desktop/QtLoop.h"
#include "ui/Shell.h"
#include "ui/Words.h"
#include "ui/parts/StoredPicture.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QSGRendererInterface>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace vitrelle;

constexpr int styles = 12;
constexpr int rounds = 7;

const ui::StoredPicture* readyPicture(const QQuickItem* item) {
  const auto* picture = qobject_cast<const ui::StoredPicture*>(item);
  if (picture != nullptr && picture->isReady()) return picture;
  for (const QQuickItem* child : item->childItems()) {
    if (const auto* found = readyPicture(child)) return found;
  }
  return nullptr;
}

Platform platformOver(const QString& home) {
  return host::makePlatform(
      {.home = host::HomeFolder(home.toStdString()), .phone = {}, .verbose = false},
      host::makeQtLoop());
}

ui::ShellOptions options() {
  return {.screen = {}, .framed = true, .animated = true};
}

/// Ends with the first frame that has a picture in it.
int start(QGuiApplication& application, const QString& home) {
  const Platform platform = platformOver(home);
  ui::Shell shell(platform, options());
  if (!shell.open()) return 1;
  QObject::connect(shell.window(), &QQuickWindow::frameSwapped, &application, [&] {
    if (readyPicture(shell.window()->contentItem()) != nullptr) QCoreApplication::quit();
  });
  return QGuiApplication::exec();
}

/// Ends with the first frame of a window that holds nothing.
int startEmpty(QGuiApplication& application) {
  QQmlApplicationEngine engine;
  engine.loadData("import QtQuick\nWindow { width: 421; height: 880; visible: true }");
  auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
  QObject::connect(window, &QQuickWindow::frameSwapped, &application, &QCoreApplication::quit);
  return QGuiApplication::exec();
}

void makeStyles(const QString& home, const QStringList& screenshots) {
  const Platform platform = platformOver(home);
  const QString folder = QString::fromStdString(*platform.files.groupContainer());
  QDir().mkpath(folder);
  for (int style = 0; style < styles; ++style) {
    for (int dark = 0; dark < 2; ++dark) {
      const QString& from = screenshots[(2 * style + dark) % screenshots.size()];
      QFile::copy(from, folder + QStringLiteral("/%1original%2.png")
                                     .arg(style)
                                     .arg(QString::fromLatin1(dark == 1 ? "Dark" : "")));
    }
  }
  const GroupStore store(platform);
  store.set(keys::amountOfConfigs, std::int64_t{styles});
  store.set(keys::lastUsedAppVersion, *platform.bundle.shortVersion());
}

void run(const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationFilePath(), arguments);
  process.waitForFinished();
  if (process.exitCode() != 0) std::exit(1);
}

/// The longest time between two frames while the pager goes from end to end.
double longestFrame(const QString& home) {
  const Platform platform = platformOver(home);
  ui::Shell shell(platform, options());
  if (!shell.open()) return -1;
  QElapsedTimer clock;
  std::vector<double> frames;
  QObject::connect(shell.window(), &QQuickWindow::frameSwapped, shell.window(), [&] {
    if (clock.isValid()) frames.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    clock.start();
  });
  QTimer::singleShot(1500, [&] { // the first pictures are there
    clock.invalidate();
    frames.clear();
  });
  QTimer moves;
  QObject::connect(&moves, &QTimer::timeout, [&] {
    shell.root()->showPage(shell.root()->page() + 1);
    if (shell.root()->page() == styles - 1)
      QTimer::singleShot(600, [] { QCoreApplication::quit(); });
  });
  QTimer::singleShot(1600, [&] { moves.start(300); }); // shorter than the way: it never rests
  QGuiApplication::exec();
  return frames.empty() ? -1 : *std::ranges::max_element(frames);
}

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QQuickStyle::setStyle(QStringLiteral("Basic"));
  QGuiApplication application(argc, argv);
  QTranslator words;
  ui::installWords(words, QLocale::c());
  const QStringList arguments = QCoreApplication::arguments().mid(1);
  if (arguments.value(0) == QStringLiteral("--start")) return start(application, arguments[1]);
  if (arguments.value(0) == QStringLiteral("--empty")) return startEmpty(application);

  const QTemporaryDir home;
  makeStyles(home.path(), arguments);
  const auto starts = bench::medians(rounds, {[&] {
                                                run({QStringLiteral("--start"), home.path()});
                                              },
                                              [&] { run({QStringLiteral("--empty")}); }});
  std::printf("start %.0f ms, an empty window %.0f ms, ratio %.2f\n", starts[0], starts[1],
              starts[0] / starts[1]);

  const Platform platform = platformOver(home.path());
  ModernContentView root(platform);
  const auto lists = bench::medians(21, {[&] { root.reloadConfigs(); }});
  std::printf("list of %zu styles %.2f ms\n", root.vitrelleConfigs().size(), lists[0]);
  std::printf("longest frame of the pager %.1f ms\n", longestFrame(home.path()));
}
