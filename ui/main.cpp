// The application: puts the platform, the screens and the window together.

#include "cli/HostOptions.h"
#include "cli/Numbers.h"
#include "cli/OneLine.h"
#include "core/app/SceneDelegate.h"
#include "core/slicing/WidgetLocation.h"
#include "host/Host.h"
#include "host/desktop/AppInstance.h"
#include "host/desktop/EndInTime.h"
#include "host/desktop/EndSignals.h"
#include "host/desktop/QtLoop.h"
#include "host/drawing/DrawingProcess.h"
#include "host/location/SystemLocation.h"
#include "host/music/SystemMusic.h"
#include "host/places/PlaceNames.h"
#include "host/power/SystemBattery.h"
#include "host/time/DateWords.h"
#include "host/weather/ForecastService.h"
#include "ui/Shell.h"
#include "ui/Trouble.h"
#include "ui/Unwritten.h"
#include "ui/Words.h"
#include "ui/parts/GivenPictures.h"

#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QTranslator>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace vitrelle;

const QString locationSettings = QStringLiteral("LocationSettingsView");

struct Arguments {
  cli::Options options;
  std::string screen;
  std::string screenshot;
  int scale = 0; ///< 0 is the phone's own
  bool gl = false;
  std::vector<std::string> links;
};

/// A line on stderr, whatever the words hold.
void complain(const std::string& words) {
  std::fprintf(stderr, "vitrelle-app: %s\n", cli::oneLine(words).c_str());
}

void complain(const Failure& failure) {
  complain(failure.what + ": " + failure.why);
}

void parse(int argc, char** argv, Arguments& arguments) {
  CLI::App program("Home-screen widgets that look like holes in the wallpaper.", "vitrelle-app");
  cli::addOptions(program, arguments.options);
  program.add_option("--screen", arguments.screen,
                     "Open this screen by its type name; 'list' prints them all");
  program.add_option("--screenshot", arguments.screenshot, "Draw the screen to a PNG file and end");
  program.add_option("--scale", arguments.scale, "Pixels per point of the screenshot")
      ->check(cli::wholeNumber(1, 3));
  program.add_flag("--gl", arguments.gl, "Draw with the graphics card");
  program.add_option("LINK", arguments.links, "Links to open, vitrelle://…");
  try {
    program.parse(argc, argv);
    cli::readEnvironment(arguments.options);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) std::exit(program.exit(error));
    complain(std::string(error.what()) + " (see 'vitrelle-app --help')");
    std::exit(2);
  }
  const QString screen = QString::fromStdString(arguments.screen);
  if (arguments.screen == "list") {
    for (const QString& name : ui::Shell::screenNames())
      std::printf("%s\n", qPrintable(name));
    std::exit(0);
  }
  if (!screen.isEmpty() && !ui::Shell::screenNames().contains(screen)) {
    complain("there is no screen '" + arguments.screen + "'; '--screen list' prints them");
    std::exit(2);
  }
}

/// What has to be said before Qt starts.
void prepareQt(const Arguments& arguments) {
  if (!arguments.screenshot.empty()) {
    // The same pixels on every machine, with and without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (arguments.scale != 0) qputenv("QT_SCALE_FACTOR", QByteArray::number(arguments.scale));
  }
  if (!arguments.gl) QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QQuickStyle::setStyle(QStringLiteral("Basic"));
}

/// Draws until nothing is being loaded, then writes the file.
int takeScreenshot(ui::Shell& shell, const std::string& file) {
  for (int quiet = 0; quiet < 3; quiet = shell.surroundings().pictures().isIdle() ? quiet + 1 : 0) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    shell.window()->grabWindow();
  }
  const QImage picture = shell.window()->grabWindow();
  if (picture.isNull() || !picture.save(QString::fromStdString(file), "PNG")) {
    complain(Failure{file, "it can't be written"});
    return 1;
  }
  return 0;
}

/// The application that runs already takes the links and comes to the front; the exit status.
int handOver(const host::HomeFolder& home, std::vector<std::string> links) {
  if (links.empty()) links.emplace_back();
  for (const std::string& link : links) {
    const Result<bool> sent = host::makeLinks(home).send(link);
    if (sent && *sent) continue;
    complain(Failure{link, "the application that runs did not take it"});
    return 1;
  }
  return 0;
}

/// As it was chosen, or as the desktop is, which says so by its palette alone.
std::function<std::int64_t()> appearanceOf(const PhoneBook& phones) {
  return [current = phones.current] {
    const AppearanceChoice chosen = current().appearance;
    const QPalette palette = QGuiApplication::palette();
    const bool isDesktopDark = palette.color(QPalette::Window).lightness() <
                               palette.color(QPalette::WindowText).lightness();
    const bool isDark =
        chosen == AppearanceChoice::dark || (chosen == AppearanceChoice::desktop && isDesktopDark);
    return isDark ? darkStyle : lightStyle;
  };
}

/// The window as the system's scene of the application.
Scene presentScene() {
  const Qt::ApplicationState state = QGuiApplication::applicationState();
  return {.activationState = state == Qt::ApplicationActive ? ActivationState::foregroundActive
                             : state == Qt::ApplicationInactive
                                 ? ActivationState::foregroundInactive
                                 : ActivationState::background};
}

/// The window, from its start to its end. `instance` may be null: then no links come in.
int runWindow(const Arguments& arguments, const host::EventLoop& loop,
              host::AppInstance* instance) {
  const bool interactive = arguments.screenshot.empty();
  ui::Shell* shell = nullptr;
  QString told; // of trouble; shown as soon as there is a shell
  bool suspended = false;
  host::HostOptions options = cli::hostOptions(arguments.options);
  options.storePatience = 500; // the window stands still meanwhile
  Platform onHome = host::makePlatform(options, loop);
  Platform platform = ui::withTroubleTold(
      interactive ? std::move(onHome) : ui::withNothingWritten(std::move(onHome)),
      [&](ui::Trouble trouble, const Failure& failure) {
        const QString pattern = trouble == ui::Trouble::reading ? qtTrId("app.store.unreadable")
                                                                : qtTrId("app.store.readOnly");
        told = pattern.arg(QString::fromStdString(failure.what + ": " + failure.why));
        if (shell != nullptr) shell->notices().show(told, ui::Notices::Trouble);
      },
      [&] {
        if (shell != nullptr && shell->notices().text() == told) shell->notices().dismiss();
        told.clear();
      });
  platform = ui::withGivenPictures(std::move(platform), [&](const Failure& failure) {
    const QString words = QString::fromStdString(failure.what + ": " + failure.why);
    if (shell != nullptr) shell->notices().show(qtTrId("app.unreadable").arg(words));
  });
  platform.application.rootViewController = []() -> std::optional<ViewController> {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    if (windows.isEmpty()) return std::nullopt;
    return ViewController{reinterpret_cast<std::uintptr_t>(windows.constFirst())};
  };
  platform.application.suspend = [&] {
    suspended = true; // a hidden window does not end the program
    if (shell != nullptr && shell->window() != nullptr) shell->window()->hide();
  };

  if (interactive) {
    platform.application.connectedScenes = [] { return std::vector<Scene>{presentScene()}; };
    platform.reviewController.requestReview = [&](const Scene&) {
      if (shell != nullptr) shell->reviewQuestion()->ask();
    };
  }

  platform.debugConsole.print = [print = platform.debugConsole.print](const std::string& line) {
    print(cli::oneLine(line));
  };
  // A screenshot is the same on every desktop.
  if (interactive) platform.device.userInterfaceStyle = appearanceOf(platform.phoneBook);
  host::useDrawing(platform);
  host::useDateWords(platform);
  if (interactive) {
    host::useBattery(platform, options, loop);
    host::useMusic(platform);
  } else {
    host::useBatteryAtOnce(platform, options, loop);
    host::useMusicAtOnce(platform);
    platform.musicPlayer.playbackState(); // is waited for while no page is open yet
  }
  host::useGeocoder(platform, loop);
  if (interactive) {
    host::useLocation(platform, options, loop,
                      {.ask =
                           [&] {
                             if (shell != nullptr) shell->locationQuestion()->ask();
                           },
                       .openSettings =
                           [&] {
                             if (shell != nullptr) shell->navigator()->open(locationSettings);
                           }});
  } else {
    host::useLocationAtOnce(platform, options, loop);
  }
  // A screenshot asks nobody for the weather: it would not wait for the answer.
  if (interactive) host::useWeatherService(platform, options, loop);

  AppDelegate(platform).didFinishLaunching();
  const SceneDelegate scene(platform);
  if (interactive) {
    std::vector<Link> links;
    for (const std::string& link : arguments.links)
      links.push_back(Link::parse(link));
    scene.willConnect(links);
  }

  // When the window is gone all is stored. What threads hang in then is nobody's concern.
  struct Ending {
    int status = 1;
    ~Ending() { host::endInTime(std::chrono::seconds(1), status); }
  } ending;
  ui::Shell theShell(platform, {.screen = QString::fromStdString(arguments.screen),
                                .framed = interactive,
                                .animated = interactive,
                                .launches = !interactive || arguments.screen.empty()});
  shell = &theShell;
  if (!told.isEmpty()) shell->notices().show(told, ui::Notices::Trouble);
  if (!theShell.open()) return 1;
  if (!interactive) return ending.status = takeScreenshot(theShell, arguments.screenshot);

  if (suspended) theShell.window()->hide();
  QObject::connect(theShell.window(), &QQuickWindow::sceneGraphError, qGuiApp,
                   [](QQuickWindow::SceneGraphError, const QString& message) {
                     complain(Failure{"drawing", message.toStdString()});
                     QCoreApplication::exit(1);
                   });
  if (instance != nullptr) {
    instance->onLink([&](const std::string& url) {
      theShell.raise();
      const Link link = Link::parse(url);
      if (!url.empty()) scene.openLinks({&link, 1});
    });
  }
  const host::EndSignals requests(loop, [] { QCoreApplication::exit(0); });
  return ending.status = QCoreApplication::exec();
}

int run(int argc, char** argv) {
  Arguments arguments;
  parse(argc, argv, arguments);
  const host::HomeFolder home = cli::hostOptions(arguments.options).home;
  if (const Status sound = home.check(); !sound) {
    complain(sound.failure());
    return 1;
  }
  prepareQt(arguments);
  const QGuiApplication application(argc, argv);
  QGuiApplication::setApplicationName(QStringLiteral("Vitrelle"));
  QGuiApplication::setDesktopFileName(QStringLiteral("vitrelle"));
  QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/app-icon.svg")));
  QTranslator translator;
  ui::installWords(translator, QLocale());

  const host::EventLoop loop = host::makeQtLoop();
  if (!arguments.screenshot.empty()) return runWindow(arguments, loop, nullptr);
  const auto instance = host::AppInstance::claim(home, loop);
  if (!instance) { // such as a home that can't be written to; it can still be looked at
    complain(instance.failure());
    return runWindow(arguments, loop, nullptr);
  }
  if (*instance == nullptr) return handOver(home, arguments.links);
  return runWindow(arguments, loop, instance->get());
}

} // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) { // such as a lack of memory
    complain(Failure{"the program can't go on", error.what()});
    return 1;
  }
}
