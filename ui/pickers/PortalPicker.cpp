#include "ui/pickers/PortalPicker.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QGuiApplication>
#include <QPointer>

#include <utility>

namespace vitrelle::ui {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString chooser = QStringLiteral("org.freedesktop.portal.FileChooser");
const QString requests = QStringLiteral("org.freedesktop.portal.Request");

struct Rule {
  uint kind = 1; ///< 0 is a pattern of names, 1 a MIME type
  QString value;
};

struct Filter {
  QString name;
  QList<Rule> rules;
};

QDBusArgument& operator<<(QDBusArgument& out, const Rule& rule) {
  out.beginStructure();
  out << rule.kind << rule.value;
  out.endStructure();
  return out;
}
const QDBusArgument& operator>>(const QDBusArgument& in, Rule& rule) {
  in.beginStructure();
  in >> rule.kind >> rule.value;
  in.endStructure();
  return in;
}
QDBusArgument& operator<<(QDBusArgument& out, const Filter& filter) {
  out.beginStructure();
  out << filter.name << filter.rules;
  out.endStructure();
  return out;
}
const QDBusArgument& operator>>(const QDBusArgument& in, Filter& filter) {
  in.beginStructure();
  in >> filter.name >> filter.rules;
  in.endStructure();
  return in;
}

void registerTypes() {
  qDBusRegisterMetaType<Rule>();
  qDBusRegisterMetaType<QList<Rule>>();
  qDBusRegisterMetaType<Filter>();
  qDBusRegisterMetaType<QList<Filter>>();
}

/// How the portal is told of a window; empty where the window system has no name for one.
QString nameOf(const QQuickWindow* window) {
  if (window == nullptr || QGuiApplication::platformName() != QStringLiteral("xcb")) return {};
  return QStringLiteral("x11:%1").arg(window->winId(), 0, 16);
}

void closeRequest(const QDBusConnection& bus, const QString& request) {
  QDBusMessage message =
      QDBusMessage::createMethodCall(service, request, requests, QStringLiteral("Close"));
  message.setAutoStartService(false);
  bus.send(message);
}

} // namespace

PortalPicker::PortalPicker(QDBusConnection bus, std::chrono::milliseconds patience, QObject* parent)
    : QObject(parent),
      bus_(std::move(bus)),
      owner_(service, bus_, QDBusServiceWatcher::WatchForUnregistration) {
  patience_.setSingleShot(true);
  patience_.setInterval(patience);
  connect(&patience_, &QTimer::timeout, this, &PortalPicker::giveUp);
  connect(&owner_, &QDBusServiceWatcher::serviceUnregistered, this, &PortalPicker::giveUp);
}

void PortalPicker::open(QQuickWindow* window, const QString& title, const QString& kinds,
                        const QString& folder) {
  const Filter pictures{kinds,
                        {{.value = QStringLiteral("image/png")},
                         {.value = QStringLiteral("image/jpeg")},
                         {.value = QStringLiteral("image/heic")},
                         {.value = QStringLiteral("image/heif")}}};
  ask(QStringLiteral("OpenFile"), window, title, folder,
      {{QStringLiteral("filters"), QVariant::fromValue(QList<Filter>{pictures})}});
}

void PortalPicker::save(QQuickWindow* window, const QString& title, const QString& kinds,
                        const QString& folder, const QString& fileName) {
  const Filter pictures{kinds, {{.value = QStringLiteral("image/png")}}};
  ask(QStringLiteral("SaveFile"), window, title, folder,
      {{QStringLiteral("filters"), QVariant::fromValue(QList<Filter>{pictures})},
       {QStringLiteral("current_name"), fileName}});
}

void PortalPicker::ask(const QString& method, QQuickWindow* window, const QString& title,
                       const QString& folder, QVariantMap options) {
  close();
  if (!bus_.isConnected()) return Q_EMIT unavailable();
  registerTypes();
  const QString token = QStringLiteral("vitrelle%1").arg(++requests_);
  const QString sender = bus_.baseService().mid(1).replace(u'.', u'_');
  listenAt(portalPath + QStringLiteral("/request/") + sender + u'/' + token);

  options.insert(QStringLiteral("handle_token"), token);
  options.insert(QStringLiteral("modal"), true);
  if (!folder.isEmpty()) // bytes that end with a zero
    options.insert(QStringLiteral("current_folder"), QFile::encodeName(folder).append('\0'));
  QDBusMessage message = QDBusMessage::createMethodCall(service, portalPath, chooser, method);
  message << nameOf(window) << title << options;
  auto* call = new QDBusPendingCallWatcher(bus_.asyncCall(message), QCoreApplication::instance());
  connect(call, &QDBusPendingCallWatcher::finished, call,
          [self = QPointer(this), bus = bus_, call, asked = request_] {
            call->deleteLater();
            const QDBusPendingReply<QDBusObjectPath> reply = *call;
            const bool isWanted = self && self->request_ == asked;
            if (isWanted) return self->follow(reply);
            // A portal that was slow to start shows a dialog that nobody listens to any more.
            if (!reply.isError()) closeRequest(bus, reply.value().path());
          });
  patience_.start();
}

void PortalPicker::follow(const QDBusPendingReply<QDBusObjectPath>& reply) {
  if (reply.isError()) return giveUp();
  patience_.stop();
  // Old portals choose the path themselves.
  if (reply.value().path() != request_) listenAt(reply.value().path());
}

void PortalPicker::close() {
  if (request_.isEmpty()) return;
  closeRequest(bus_, request_);
  forgetRequest();
}

void PortalPicker::listenAt(const QString& request) {
  forgetRequest();
  request_ = request;
  bus_.connect(service, request_, requests, QStringLiteral("Response"), this,
               SLOT(takeAnswer(uint, QVariantMap)));
}

void PortalPicker::forgetRequest() {
  patience_.stop();
  if (request_.isEmpty()) return;
  bus_.disconnect(service, request_, requests, QStringLiteral("Response"), this,
                  SLOT(takeAnswer(uint, QVariantMap)));
  request_.clear();
}

void PortalPicker::giveUp() {
  if (request_.isEmpty()) return;
  close();
  Q_EMIT unavailable();
}

void PortalPicker::takeAnswer(uint response, const QVariantMap& results) {
  if (request_.isEmpty()) return;
  forgetRequest();
  constexpr uint chosen = 0;
  constexpr uint cancelled = 1;
  const QStringList files = results.value(QStringLiteral("uris")).toStringList();
  if (response == cancelled) return Q_EMIT rejected();
  if (response != chosen || files.isEmpty()) return Q_EMIT unavailable();
  Q_EMIT accepted(QUrl(files.constFirst()));
}

} // namespace vitrelle::ui
