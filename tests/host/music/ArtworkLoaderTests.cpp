// Albums' pictures from files, from addresses that carry them, and from a server of the test's own.
#include "host/music/ArtworkLoader.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <vector>

#include <sys/stat.h>

namespace vitrelle::host {
namespace {

QByteArray picture(int width, int height, const char* format = "PNG") {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::blue);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, format));
  return bytes;
}

/// Answers each path with the bytes told, head and all; one without any is never answered.
class Server final : public QTcpServer {
 public:
  Server() {
    EXPECT_TRUE(listen(QHostAddress::LocalHost));
    connect(this, &QTcpServer::newConnection, this, [this] {
      QTcpSocket* socket = nextPendingConnection();
      connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
        const QByteArray request = socket->readAll();
        const QByteArray path = request.split(' ').value(1);
        asked.push_back(path);
        if (!answers.contains(path)) return;
        socket->write(answers.at(path));
        socket->disconnectFromHost();
      });
    });
  }
  QString address(const char* path) const {
    return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(QLatin1String(path));
  }

  std::map<QByteArray, QByteArray> answers;
  std::vector<QByteArray> asked;
};

QByteArray found(const QByteArray& body) {
  return "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + body;
}

class ArtworkLoaderTest : public testing::Test {
 protected:
  QString write(const char* name, const QByteArray& bytes) const {
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return QStringLiteral("file://") + file.fileName();
  }
  /// Its size as soon as it is there; 0 by 0 where there is none.
  PixelSize sizeOf(const QString& address) {
    loader.show(address);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !loader.isLoading(); })) << address.toStdString();
    return loader.picture() ? loader.picture()->size() : PixelSize();
  }

  QTemporaryDir folder;
  Server server;
  int ends = 0;
  ArtworkLimits limits{
      .bytes = 100'000, .pixelsOfASide = 1000, .side = 100, .patience = std::chrono::seconds(3)};
  ArtworkLoader loader{limits, [this] { ++ends; }};
};

TEST_F(ArtworkLoaderTest, pictures_comeFromAllKindsOfAddresses) {
  const QByteArray png = picture(60, 40);
  server.answers = {
      {"/cover", found(png)},
      {"/moved", "HTTP/1.1 302 Found\r\nLocation: /cover\r\nContent-Length: 0\r\n\r\n"}};
  const QString carried = QStringLiteral("data:image/png;base64,") + png.toBase64();
  const QString escaped = QStringLiteral("data:image/png,") + png.toPercentEncoding();
  for (const QString& address : {write("cover.png", png), server.address("/cover"),
                                 server.address("/moved"), carried, escaped})
    EXPECT_EQ(sizeOf(address), (PixelSize{60, 40})) << address.left(40).toStdString();
  EXPECT_EQ(sizeOf(write("a cover.jpg", picture(900, 300, "JPEG"))), (PixelSize{100, 33}));
  const Bitmap small = *loader.picture()->bitmap();
  EXPECT_TRUE(small.opaque);
  EXPECT_GT(small.row(16)[4 * 50 + 2], 250) << "blue";
}

TEST_F(ArtworkLoaderTest, whatIsNoPictureWithinTheLimits_isNone) {
  const QByteArray png = picture(60, 40);
  QByteArray noise(60'000, '\0');
  for (qsizetype i = 0; i < noise.size(); ++i)
    noise[i] = static_cast<char>(i * i * 31 >> 5);
  server.answers = {
      {"/words", found("<html>not here</html>")},
      {"/large", found(png + QByteArray(200'000, 'x'))},
      {"/error", "HTTP/1.1 404 Gone\r\nConnection: close\r\n\r\n" + png},
      {"/half", "HTTP/1.1 200 OK\r\nContent-Length: 9999\r\n\r\n" + png},
      {"/garbled", "no HTTP"},
      {"/round", "HTTP/1.1 302 Found\r\nLocation: /round\r\n\r\n"},
      {"/file", "HTTP/1.1 302 Found\r\nLocation: " + write("a.png", png).toUtf8() + "\r\n\r\n"}};
  const QString pipe = folder.filePath(QStringLiteral("pipe"));
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  std::vector<QString> addresses{QString(),
                                 QStringLiteral("no address"),
                                 QStringLiteral("ftp://127.0.0.1/a.png"),
                                 QStringLiteral("data:"),
                                 QStringLiteral("data:image/png;base64,$$$"),
                                 QStringLiteral("file:///no/such.png"),
                                 QStringLiteral("file://") + folder.path(),
                                 QStringLiteral("file://") + pipe,
                                 QStringLiteral("file:///dev/zero"),
                                 write("cut.png", png.left(png.size() / 2)),
                                 write("noise.png", png.left(8) + noise),
                                 write("wide.png", picture(1001, 1)),
                                 write("long.png", png + QByteArray(200'000, 'x'))};
  for (const auto& [path, answer] : server.answers)
    addresses.push_back(server.address(path.constData()));
  for (const QString& address : addresses) {
    sizeOf(write("before.png", png));
    EXPECT_EQ(sizeOf(address), PixelSize()) << address.left(60).toStdString();
  }
  EXPECT_EQ(sizeOf(server.address("/words")), PixelSize());
}

TEST_F(ArtworkLoaderTest, hangingServer_isGivenUp) {
  ArtworkLimits brief = limits;
  brief.patience = std::chrono::milliseconds(100);
  ArtworkLoader impatient(brief, [this] { ++ends; });
  QElapsedTimer timer;
  timer.start();
  impatient.show(server.address("/never"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !impatient.isLoading(); }));
  EXPECT_LT(timer.elapsed(), 3000);
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(server.asked.size(), 1U) << "and not asked again";
}

TEST_F(ArtworkLoaderTest, nextAddress_givesUpTheLast) {
  server.answers = {{"/cover", found(picture(60, 40))}};
  loader.show(server.address("/never"));
  loader.show(write("first.png", picture(10, 10)));
  EXPECT_EQ(sizeOf(server.address("/cover")), (PixelSize{60, 40}));
  QTest::qWait(50);
  EXPECT_EQ(loader.picture()->size(), (PixelSize{60, 40}));
  EXPECT_EQ(ends, 1);
}

TEST_F(ArtworkLoaderTest, lastFew_areKept) {
  server.answers = {{"/cover", found(picture(60, 40))}};
  sizeOf(server.address("/cover"));
  const Image first = *loader.picture();
  for (int i = 0; i < 3; ++i)
    sizeOf(write(qPrintable(QString::number(i)), picture(10 + i, 10)));
  loader.show(server.address("/cover"));
  EXPECT_TRUE(loader.picture() == first) << "at once";
  EXPECT_EQ(server.asked.size(), 1U);
  for (int i = 0; i < 5; ++i)
    sizeOf(write(qPrintable(QString::number(i)), picture(10 + i, 10)));
  sizeOf(server.address("/cover"));
  EXPECT_EQ(server.asked.size(), 2U);
}

TEST_F(ArtworkLoaderTest, fileThatIsWrittenAnew_isReadAnew) {
  const QString address = write("cover.png", picture(60, 40));
  sizeOf(address);
  const Image first = *loader.picture();
  sizeOf(address);
  EXPECT_TRUE(loader.picture() == first) << "the same picture is the same object";
  write("cover.png", picture(40, 60, "JPEG"));
  EXPECT_EQ(sizeOf(address), (PixelSize{40, 60}));
  QFile::remove(folder.filePath(QStringLiteral("cover.png")));
  EXPECT_EQ(sizeOf(address), PixelSize());
}

TEST_F(ArtworkLoaderTest, loaderThatGoes_takesItsWorkAlong) {
  for (const QString& address : {server.address("/never"), write("cover.png", picture(900, 900))}) {
    ArtworkLoader shortLived(limits, [this] { ++ends; });
    shortLived.show(address);
  }
  QTest::qWait(100);
  EXPECT_EQ(ends, 0);
}

} // namespace
} // namespace vitrelle::host
