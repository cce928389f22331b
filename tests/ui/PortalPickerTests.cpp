// The choosing of a picture through the desktop's portal, over a bus of its own with a stand-in for
// the portal.
#include "ui/pickers/PortalPicker.h"

#include "tests/support/PrivateBus.h"
#include "tests/ui/FakePortal.h"

#include <QDBusArgument>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace vitrelle::ui {
namespace {

using test::Manner;
using test::portalPath;
using test::service;

class PortalPickerTest : public testing::Test {
 protected:
  PortalPickerTest() {
    portal = std::make_unique<test::Portal>(portalBus);
    picker = std::make_unique<PortalPicker>(ownBus, std::chrono::milliseconds(150));
    QObject::connect(picker.get(), &PortalPicker::accepted, [this](const QUrl& file) {
      told += QStringLiteral("accepted ") + file.toLocalFile();
    });
    QObject::connect(picker.get(), &PortalPicker::rejected, [this] { told += "rejected"; });
    QObject::connect(picker.get(), &PortalPicker::unavailable, [this] { told += "unavailable"; });
  }

  void offer() {
    ASSERT_TRUE(
        portalBus.registerObject(portalPath, portal.get(), QDBusConnection::ExportScriptableSlots));
    ASSERT_TRUE(portalBus.registerService(service));
  }
  void open() {
    portal->path.clear();
    told.clear();
    picker->open(nullptr, QStringLiteral("Choose"), QStringLiteral("Pictures"),
                 QStringLiteral("/tmp/été"));
  }
  void openAndSee() {
    open();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal->path.isEmpty(); }));
    QTest::qWait(20); // its reply comes
    ASSERT_TRUE(told.isEmpty());
  }
  bool tells(const QString& what) {
    return QTest::qWaitFor([&] { return !told.isEmpty(); }) && told == QStringList{what};
  }

  test::PrivateBus bus;
  QDBusConnection portalBus = bus.connect(QStringLiteral("portal"));
  QDBusConnection ownBus = bus.connect(QStringLiteral("own"));
  std::unique_ptr<test::Portal> portal;
  std::unique_ptr<PortalPicker> picker;
  QStringList told;
};

TEST_F(PortalPickerTest, answers_areToldOnce) {
  offer();
  const QStringList picture{QStringLiteral("file:///tmp/a%20b.png")};
  const struct {
    uint response;
    QStringList files;
    QString told;
  } cases[] = {{0, picture, QStringLiteral("accepted /tmp/a b.png")},
               {1, {}, QStringLiteral("rejected")},
               {2, {}, QStringLiteral("unavailable")},
               {0, {}, QStringLiteral("unavailable")}};
  for (const Manner manner : {Manner::asItShould, Manner::choosesThePath}) {
    portal->manner = manner;
    openAndSee();
    QTest::qWait(200); // once it is there, one may take long to choose
    ASSERT_TRUE(told.isEmpty());
    for (const auto& one : cases) {
      openAndSee();
      portal->answer(one.response, one.files);
      portal->answer(one.response, one.files);
      EXPECT_TRUE(tells(one.told)) << one.told.toStdString();
      QTest::qWait(20);
      EXPECT_EQ(told.size(), 1);
    }
  }
}

TEST_F(PortalPickerTest, dialog_isAskedForPicturesInTheFolder) {
  offer();
  openAndSee();
  EXPECT_EQ(portal->method, "OpenFile");
  EXPECT_EQ(portal->parent, QString()) << "no window of X11";
  EXPECT_EQ(portal->title, "Choose");
  EXPECT_EQ(portal->options.value(QStringLiteral("current_folder")).toByteArray(),
            QByteArray("/tmp/\xc3\xa9t\xc3\xa9\0", 11));
  const auto filters = portal->options.value(QStringLiteral("filters")).value<QDBusArgument>();
  ASSERT_EQ(filters.currentSignature(), "a(sa(us))");
  QStringList types;
  filters.beginArray();
  filters.beginStructure();
  QString name;
  filters >> name;
  filters.beginArray();
  while (!filters.atEnd()) {
    uint kind = 0;
    QString type;
    filters.beginStructure();
    filters >> kind >> type;
    filters.endStructure();
    EXPECT_EQ(kind, 1U);
    types += type;
  }
  filters.endArray();
  filters.endStructure();
  filters.endArray();
  EXPECT_EQ(name, "Pictures");
  EXPECT_EQ(types, (QStringList{"image/png", "image/jpeg", "image/heic", "image/heif"}));
}

TEST_F(PortalPickerTest, place_isAskedForUnderAName) {
  offer();
  picker->save(nullptr, QStringLiteral("Save"), QStringLiteral("Pictures"), QStringLiteral("/tmp"),
               QStringLiteral("0top Ä.png"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !portal->path.isEmpty(); }));
  EXPECT_EQ(portal->method, "SaveFile");
  EXPECT_EQ(portal->title, "Save");
  EXPECT_EQ(portal->options.value(QStringLiteral("current_name")).toString(), "0top Ä.png");
  EXPECT_EQ(portal->options.value(QStringLiteral("current_folder")).toByteArray(),
            QByteArray("/tmp\0", 5));
  portal->answer(0, {QStringLiteral("file:///tmp/0top%20%C3%84.png")});
  EXPECT_TRUE(tells(QStringLiteral("accepted /tmp/0top Ä.png")));
}

TEST_F(PortalPickerTest, whatIsNoPortal_isUnavailable) {
  open();
  EXPECT_TRUE(tells(QStringLiteral("unavailable"))) << "nobody has the name";

  ASSERT_TRUE(portalBus.registerService(service));
  open();
  EXPECT_TRUE(tells(QStringLiteral("unavailable"))) << "it chooses no files";

  offer();
  portal->manner = Manner::fails;
  open();
  EXPECT_TRUE(tells(QStringLiteral("unavailable"))) << "it fails";

  portal->manner = Manner::keepsSilent;
  open();
  EXPECT_TRUE(tells(QStringLiteral("unavailable"))) << "it says nothing";

  portal->manner = Manner::asItShould;
  openAndSee();
  portalBus.unregisterService(service);
  EXPECT_TRUE(tells(QStringLiteral("unavailable"))) << "it went";
}

TEST_F(PortalPickerTest, closing_takesTheDialogAwayWithoutAWord) {
  offer();
  openAndSee();
  test::Request request;
  portalBus.registerObject(portal->path, &request, QDBusConnection::ExportScriptableSlots);
  picker->close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return request.closed == 1; }));
  portal->answer(1, {});
  QTest::qWait(200);
  EXPECT_TRUE(told.isEmpty());
  EXPECT_EQ(request.closed, 1);
}

} // namespace
} // namespace vitrelle::ui
