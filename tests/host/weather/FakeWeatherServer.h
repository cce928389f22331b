// A web server of this machine that answers as a test wants, however amiss.
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace vitrelle::test {

/// What is sent, byte by byte as it is.
struct Answer {
  QByteArray bytes;
  bool closes = true;
  QByteArray drip = {};         ///< sent again and again behind that
  int dripMilliseconds = 0;     ///< the distance
  qint64 mostBytes = 1'000'000; ///< of drips
};

/// A whole answer; headers are lines that end with a line break.
inline QByteArray httpAnswer(const QByteArray& status, const QByteArray& headers,
                             const QByteArray& body) {
  return "HTTP/1.1 " + status + "\r\n" + headers +
         "Content-Length: " + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" +
         body;
}

class FakeWeatherServer final {
 public:
  FakeWeatherServer() {
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
      QTcpSocket* socket = server_.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(*socket); });
      QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
    start();
  }

  void start() {
    EXPECT_TRUE(server_.listen(QHostAddress::LocalHost, port_));
    port_ = server_.serverPort();
  }
  void stop() { server_.close(); }
  std::string url(const std::string& path = "/complete") const {
    return "http://127.0.0.1:" + std::to_string(port_) + path;
  }

  /// By the request, from its first line to the empty one.
  std::function<Answer(const QByteArray& request)> answer;
  std::vector<QByteArray> requests;
  qint64 dripped = 0;

 private:
  void read(QTcpSocket& socket) {
    if (socket.state() != QAbstractSocket::ConnectedState) return; // it has been answered
    const QByteArray request = socket.property("read").toByteArray() + socket.readAll();
    socket.setProperty("read", request);
    if (!request.endsWith("\r\n\r\n")) return;
    socket.setProperty("read", QByteArray());
    requests.push_back(request);
    const Answer answered = answer(request);
    socket.write(answered.bytes);
    if (!answered.drip.isEmpty()) {
      drip(socket, answered);
    } else if (answered.closes) {
      socket.disconnectFromHost();
    }
  }
  void drip(QTcpSocket& socket, const Answer& answered) {
    auto* timer = new QTimer(&socket);
    QObject::connect(timer, &QTimer::timeout, timer, [this, &socket, answered] {
      if (socket.bytesToWrite() > 1'000'000 || dripped >= answered.mostBytes) return;
      dripped += socket.write(answered.drip);
    });
    timer->start(answered.dripMilliseconds);
  }

  QTcpServer server_;
  quint16 port_ = 0;
};

} // namespace vitrelle::test
