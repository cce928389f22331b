// One request over the network, of bounded time and size.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QString>

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>

namespace vitrelle::host {

struct DownloadLimits {
  std::chrono::milliseconds time; ///< for all of it, from the look-up of the name on
  std::size_t bytes;              ///< of the body as it was before it was packed
};

/// What came of it.
struct Download {
  int status = 0;           ///< HTTP's; 0 when there was no whole answer
  const char* trouble = ""; ///< why there was none, in words
  bool wasReached = true;   ///< whether a server had to do with it
  QByteArray body;
  std::map<QByteArray, QByteArray> headers; ///< by their names in small letters

  QByteArray header(const char* name) const;
  std::optional<QDateTime> time(const char* header) const;
};

/// Calls back from the event loop of the manager's thread, unless the manager goes before. Follows
/// few redirections, and none to another server or scheme. Neither sends nor takes cookies.
void download(QNetworkAccessManager& manager, const QNetworkRequest& request, DownloadLimits limits,
              std::function<void(const Download&)> done);

} // namespace vitrelle::host
