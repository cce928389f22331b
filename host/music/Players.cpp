#include "host/music/Players.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>
#include <utility>

namespace vitrelle::host {

namespace {

const QString path = QStringLiteral("/org/mpris/MediaPlayer2");
const QString player = QStringLiteral("org.mpris.MediaPlayer2.Player");
const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString changes = QStringLiteral("PropertiesChanged");
const QString changesSignature = QStringLiteral("sa{sv}as");
const QString busService = QStringLiteral("org.freedesktop.DBus");
const QString busPath = QStringLiteral("/org/freedesktop/DBus");

} // namespace

Players::Players(QDBusConnection bus, std::chrono::milliseconds patience,
                 std::function<void()> onAnswer)
    : bus_(std::move(bus)),
      patience_(patience),
      onAnswer_(std::move(onAnswer)),
      owners_(playerNames.chopped(1) + QLatin1Char('*'), bus_,
              QDBusServiceWatcher::WatchForOwnerChange) {
  connect(&owners_, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString& name, const QString&, const QString& owner) {
            changeOwner(name, !owner.isEmpty());
          });
  bus_.connect({}, path, properties, changes, {player}, changesSignature, this,
               SLOT(hear(QDBusMessage)));
  askForNames();
}

Players::~Players() {
  bus_.disconnect({}, path, properties, changes, {player}, changesSignature, this,
                  SLOT(hear(QDBusMessage)));
}

const PlayerReport* Players::chosen() const {
  const auto rank = [](const auto& entry) {
    return std::pair(entry.second.report.state == playback::playing, entry.second.changed);
  };
  const auto first = std::ranges::max_element(players_, {}, rank);
  return first == players_.end() ? nullptr : &first->second.report;
}

void Players::askForNames() {
  if (!bus_.isConnected()) return; // there would be no answer, not even a failure
  ++open_;
  auto* watcher = new QDBusPendingCallWatcher(
      bus_.asyncCall(QDBusMessage::createMethodCall(busService, busPath, busService,
                                                    QStringLiteral("ListNames")),
                     static_cast<int>(patience_.count())),
      this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    --open_;
    const QDBusPendingReply<QStringList> reply = *watcher;
    if (!reply.isError()) {
      for (const QString& name : reply.value())
        if (name.startsWith(playerNames) && !names_.contains(name)) ask(name);
    }
    onAnswer_();
  });
}

void Players::ask(const QString& name) {
  Name& asked = names_[name];
  const std::uint64_t question = ++questions_;
  asked.question = question;
  asked.isAsked = true;
  ++open_;
  QDBusMessage message =
      QDBusMessage::createMethodCall(name, path, properties, QStringLiteral("GetAll"));
  message << player;
  message.setAutoStartService(false); // it may have gone meanwhile
  auto* watcher = new QDBusPendingCallWatcher(
      bus_.asyncCall(message, static_cast<int>(patience_.count())), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, name, question] {
    watcher->deleteLater();
    --open_;
    take(name, question, watcher->reply());
    onAnswer_();
  });
}

void Players::take(const QString& name, std::uint64_t question, const QDBusMessage& reply) {
  const auto found = names_.find(name);
  if (found == names_.end() || found->second.question != question) return; // another has it now
  found->second.isAsked = false;
  const QDBusPendingReply<QVariantMap> told = reply;
  if (told.isError()) return;
  found->second.owner = reply.service();
  players_[reply.service()];
  tell(reply.service(), told.value());
}

void Players::hear(const QDBusMessage& signal) {
  if (!players_.contains(signal.service())) {
    // One that was mute has found its voice.
    for (const auto& [name, state] : names_)
      if (state.owner.isEmpty() && !state.isAsked) ask(name);
    return;
  }
  const QVariantList arguments = signal.arguments();
  tell(signal.service(), qdbus_cast<QVariantMap>(arguments.at(1)));
  if (!arguments.at(2).toStringList().isEmpty()) askAgain(signal.service());
  onAnswer_();
}

void Players::askAgain(const QString& owner) {
  const auto named =
      std::ranges::find_if(names_, [&](const auto& entry) { return entry.second.owner == owner; });
  if (named != names_.end() && !named->second.isAsked) ask(named->first);
}

void Players::tell(const QString& owner, const QVariantMap& properties) {
  Player& player = players_[owner];
  const PlayerReport before = player.report;
  player.report.take(properties);
  if (player.report != before) player.changed = ++changes_;
}

void Players::changeOwner(const QString& name, bool isThere) {
  const auto found = names_.find(name);
  if (found != names_.end()) {
    const QString last = found->second.owner;
    names_.erase(found);
    forget(last);
  }
  if (isThere) ask(name);
  onAnswer_();
}

void Players::forget(const QString& owner) {
  const bool hasOtherNames =
      std::ranges::any_of(names_, [&](const auto& entry) { return entry.second.owner == owner; });
  if (!hasOtherNames) players_.erase(owner);
}

} // namespace vitrelle::host
