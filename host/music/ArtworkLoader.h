// Fetches the picture of what is played, off the main thread, and keeps the last few.
#pragma once

#include "host/music/Artwork.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

class QNetworkReply;
class QUrl;

namespace vitrelle::host {

class ArtworkLoader final : public QObject {
 public:
  /// `onEnd` is called from the event loop when a picture is there, or there will be none.
  ArtworkLoader(ArtworkLimits limits, std::function<void()> onEnd);
  ~ArtworkLoader() override;

  /// From an address of the kinds file, http, https and data; there is none at others. What was
  /// fetched for the last address is given up.
  void show(const QString& address);
  const std::optional<Image>& picture() const { return picture_; }
  bool isLoading() const { return deadline_.isActive(); }

 private:
  struct Kept {
    QString address;
    std::optional<FileIdentity> file; ///< which may be another under the same name later
    Image picture;
  };
  /// What a thread beside this one has made of it.
  struct Found {
    std::optional<Image> picture = std::nullopt;
    std::optional<FileIdentity> file = std::nullopt;
    bool isKnown = false; ///< the picture shown is that of the file still
  };

  void findIn(const QString& address);
  void findInFile(const QString& path, const std::optional<FileIdentity>& known);
  void fetch(const QUrl& address);
  void receive();
  void giveUpFetching();
  void find(std::function<Found()> work);
  void end(const Found& found);
  const Kept* kept(const QString& address) const;
  void keep(const Found& found);

  ArtworkLimits limits_;
  std::function<void()> onEnd_;
  QString address_;
  std::optional<Image> picture_;
  std::deque<Kept> kept_; ///< the last one shown is first
  std::uint64_t turn_ = 0;
  QTimer deadline_;
  std::unique_ptr<QNetworkAccessManager> network_; ///< from the first picture of the network on
  QNetworkReply* reply_ = nullptr;
  QByteArray received_;
  QThreadPool threads_; ///< last: its threads end before anything else goes
};

} // namespace vitrelle::host
