// The application in this process or its own, and the command line beside it, over one home.
#include "host/Host.h"
#include "host/desktop/QtLoop.h"
#include "tests/support/Fakes.h"
#include "tests/ui/UiTest.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace vitrelle {
namespace {

class TwoProcessesTest : public testing::Test {
 protected:
  struct Outcome {
    int status = -1;
    QString output;
  };
  Outcome run(const QStringList& arguments, const char* program = VITRELLE_PROGRAM) const {
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(program, QStringList{"--home", home()} + arguments);
    // Events go on: the application may have to answer.
    if (!test::Driver::eventually([&] { return process.state() == QProcess::NotRunning; })) {
      process.kill();
      process.waitForFinished();
      return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()).trimmed()};
  }
  QProcessEnvironment environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_RUNTIME_DIR", folder.path());
    return environment;
  }
  QString home() const { return folder.filePath("home"); }
  QString picture(const char* name, Qt::GlobalColor colour) const {
    QImage image(1179, 2556, QImage::Format_RGB32);
    image.fill(colour);
    image.save(folder.filePath(name));
    return folder.filePath(name);
  }
  const QTemporaryDir folder;
};

TEST_F(TwoProcessesTest, aStyleMadeElsewhere_showsInTheOpenWindow) {
  ASSERT_EQ(run({"defaults", "write", "selectedConfig", "-int", "0"}).status, 0);
  const Platform platform = host::makePlatform(
      {.home = host::HomeFolder(home().toStdString()), .phone = {}, .verbose = false},
      host::makeQtLoop());
  ui::Shell shell(
      platform, {.screen = QStringLiteral("ModernContentView"), .framed = true, .animated = false});
  ASSERT_TRUE(shell.open());
  ASSERT_TRUE(QTest::qWaitForWindowExposed(shell.window()));
  const test::Driver driver(shell);
  EXPECT_FALSE(driver.isShown("tick0"));

  const QString light = picture("light.png", Qt::cyan);
  const QString dark = picture("dark.png", Qt::darkBlue);
  for (const char* number : {"0", "1"}) {
    const Outcome made = run({"style", "new", "--light", light, "--dark", dark});
    EXPECT_EQ(made.status, 0);
    EXPECT_EQ(made.output, number);
  }
  EXPECT_TRUE(driver.eventually([&] { return driver.isShown("tick1"); }));
  EXPECT_EQ(shell.root()->pageCount(), 3);
  driver.click("tick0");
  EXPECT_EQ(run({"defaults", "read", "selectedConfig"}).output, "0");
  shell.root()->showPage(1);
  QTest::qWait(600); // the pager comes to rest, pictures are drawn
  driver.click("tick1");
  EXPECT_EQ(run({"defaults", "read", "selectedConfig"}).output, "1");
  EXPECT_EQ(run({"shortcut", "run", "Style 1"}).output, "Success");
  EXPECT_TRUE(driver.eventually([&] {
    return shell.root()
        ->styles()
        ->data(shell.root()->styles()->index(0), ui::StyleList::selected)
        .toBool();
  }));
}

TEST_F(TwoProcessesTest, oneApplication_takesTheLinksOfOthers) {
  EXPECT_EQ(run({"open", "vitrelle://support"}).status, 1) << "none runs";
  QProcess application;
  application.setProcessEnvironment(environment());
  application.start(VITRELLE_APP, {"--home", home(), "--verbose"});
  ASSERT_TRUE(test::Driver::eventually([&] {
    return run({"open", "vitrelle://support/widget-label"}).status == 0;
  }));
  EXPECT_EQ(run({}, VITRELLE_APP).status, 0) << "a second start raises the first and ends";
  for (const char* link : {"", "://", "vitrelle://clickwidget", "%", "vitrelle://support/%ff%00"})
    EXPECT_EQ(run({"open", link}).status, 0) << link;
  EXPECT_EQ(application.state(), QProcess::Running);
  application.terminate();
  EXPECT_TRUE(application.waitForFinished(5000));
  EXPECT_EQ(run({"defaults", "read", "destination", "--standard"}).output, "home");
}

TEST_F(TwoProcessesTest, screenshots_areDrawnAtTheScaleAsked) {
  const QString file = folder.filePath("shot.png");
  for (const int scale : {1, 3}) {
    EXPECT_EQ(run({"--screenshot", file, "--scale", QString::number(scale)}, VITRELLE_APP).status,
              0);
    EXPECT_EQ(QImage(file).size(), QSize(393, 852) * scale);
  }
  EXPECT_EQ(run({"--screen", "Nothing"}, VITRELLE_APP).status, 2);
  EXPECT_EQ(run({"--screenshot", folder.filePath("no/shot.png")}, VITRELLE_APP).status, 1);
}

} // namespace
} // namespace vitrelle
