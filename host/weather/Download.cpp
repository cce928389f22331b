#include "host/weather/Download.h"

#include <QLocale>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <utility>

namespace vitrelle::host {

namespace {

constexpr int mostRedirects = 3;

struct Trouble {
  QNetworkReply::NetworkError error;
  const char* words;
  bool wasReached; ///< else it is the network of this machine that fails
};

constexpr Trouble troubles[] = {
    {QNetworkReply::HostNotFoundError, "its name is not known", false},
    {QNetworkReply::ConnectionRefusedError, "it can't be reached", false},
    {QNetworkReply::TemporaryNetworkFailureError, "it can't be reached", false},
    {QNetworkReply::NetworkSessionFailedError, "it can't be reached", false},
    {QNetworkReply::UnknownNetworkError, "it can't be reached", false},
    {QNetworkReply::RemoteHostClosedError, "it breaks off", true},
    {QNetworkReply::SslHandshakeFailedError, "the connection is not safe", true},
};
constexpr Trouble otherTrouble{QNetworkReply::ProtocolFailure, "it answers amiss", true};

const Trouble& troubleOf(QNetworkReply::NetworkError error) {
  for (const Trouble& trouble : troubles) {
    if (trouble.error == error) return trouble;
  }
  return otherTrouble;
}

/// One download; it goes with its end or with the manager.
class Job final : public QObject {
 public:
  Job(QNetworkAccessManager& manager, const QNetworkRequest& request, DownloadLimits limits,
      std::function<void(const Download&)> done)
      : QObject(&manager),
        manager_(manager),
        request_(request),
        limits_(limits),
        done_(std::move(done)) {
    request_.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                          QNetworkRequest::ManualRedirectPolicy);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute})
      request_.setAttribute(attribute, QNetworkRequest::Manual);
    QTimer::singleShot(limits.time, this, [this] { giveUp("it takes too long"); });
    get();
  }

 private:
  void get() {
    reply_ = manager_.get(request_);
    connect(reply_, &QNetworkReply::readyRead, this, &Job::take);
    connect(reply_, &QNetworkReply::finished, this, &Job::finish);
  }

  void take() {
    download_.body += reply_->readAll();
    if (static_cast<std::size_t>(download_.body.size()) > limits_.bytes)
      giveUp("it sends too much");
  }

  void finish() {
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QUrl target = reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (reply_->error() != QNetworkReply::NoError && status < 400) {
      const Trouble& trouble = troubleOf(reply_->error());
      giveUp(trouble.words, trouble.wasReached);
    } else if (!target.isEmpty()) {
      follow(reply_->url().resolved(target));
    } else {
      download_.status = status;
      download_.body += reply_->readAll();
      for (const auto& [name, value] : reply_->rawHeaderPairs())
        download_.headers[name.toLower()] = value;
      end();
    }
  }

  void follow(const QUrl& url) {
    if (redirectsLeft_-- == 0) return giveUp("it leads in circles");
    // What the address tells is for this server alone.
    const QUrl from = request_.url();
    if (url.scheme() != from.scheme() || url.host() != from.host())
      return giveUp("it leads elsewhere");
    reply_->deleteLater();
    download_.body.clear();
    request_.setUrl(url);
    get();
  }

  void giveUp(const char* trouble, bool wasReached = true) {
    download_.trouble = trouble;
    download_.wasReached = wasReached;
    end();
  }

  void end() {
    disconnect(reply_, nullptr, this, nullptr);
    reply_->abort();
    reply_->deleteLater();
    deleteLater();
    // It may be the last to hold what it calls.
    if (const auto done = std::exchange(done_, nullptr)) done(download_);
  }

  QNetworkAccessManager& manager_;
  QNetworkRequest request_;
  DownloadLimits limits_;
  std::function<void(const Download&)> done_;
  QNetworkReply* reply_ = nullptr;
  int redirectsLeft_ = mostRedirects;
  Download download_;
};

} // namespace

QByteArray Download::header(const char* name) const {
  const auto found = headers.find(name);
  return found == headers.end() ? QByteArray() : found->second;
}

std::optional<QDateTime> Download::time(const char* name) const {
  QDateTime time = QLocale::c().toDateTime(QString::fromLatin1(header(name)),
                                           QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
  if (!time.isValid()) return std::nullopt;
  time.setTimeSpec(Qt::UTC);
  return time;
}

void download(QNetworkAccessManager& manager, const QNetworkRequest& request, DownloadLimits limits,
              std::function<void(const Download&)> done) {
  new Job(manager, request, limits, std::move(done)); // the manager owns it
}

} // namespace vitrelle::host
