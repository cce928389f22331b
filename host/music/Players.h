// The music players on the session's bus: who is there, and which of them counts. They say what
// changes; none is asked again and again.
#pragma once

#include "host/music/PlayerReport.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>

namespace vitrelle::host {

/// What the names of all players on the bus begin with.
inline const QString playerNames = QStringLiteral("org.mpris.MediaPlayer2.");

class Players final : public QObject {
  Q_OBJECT

 public:
  /// Asks at once who is there. A player that does not answer for so long counts as mute until it
  /// speaks. `onAnswer` is called from the event loop, whenever a player has come, gone or spoken.
  Players(QDBusConnection bus, std::chrono::milliseconds patience, std::function<void()> onAnswer);
  ~Players() override;

  /// What the player that counts says: one that plays, else the one that changed last; of several
  /// that play that one too. Null without a player.
  const PlayerReport* chosen() const;
  bool any() const { return !names_.empty(); }
  /// Nobody is still to answer.
  bool haveAnswered() const { return open_ == 0; }

 private:
  /// A player may have several names.
  struct Name {
    QString owner = {}; ///< empty until it answers
    std::uint64_t question = 0;
    bool isAsked = false; ///< and has not answered
  };
  struct Player {
    PlayerReport report;
    std::uint64_t changed = 0;
  };

  Q_SLOT void hear(const QDBusMessage& signal);
  void askForNames();
  void ask(const QString& name);
  /// Where it says that something has changed, but not to what.
  void askAgain(const QString& owner);
  void take(const QString& name, std::uint64_t question, const QDBusMessage& reply);
  void changeOwner(const QString& name, bool isThere);
  void forget(const QString& owner);
  void tell(const QString& owner, const QVariantMap& properties);

  QDBusConnection bus_;
  std::chrono::milliseconds patience_;
  std::function<void()> onAnswer_;
  QDBusServiceWatcher owners_;
  std::map<QString, Name> names_;
  std::map<QString, Player> players_; ///< by the names that the bus gives to connections
  std::uint64_t open_ = 0;
  std::uint64_t questions_ = 0;
  std::uint64_t changes_ = 0;
};

} // namespace vitrelle::host
