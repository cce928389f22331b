#include "host/music/ArtworkLoader.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace vitrelle::host {

namespace {

constexpr std::size_t mostKept = 4;
constexpr int mostRedirects = 5;

QNetworkRequest requestOf(const QUrl& address) {
  QNetworkRequest request(address);
  request.setMaximumRedirectsAllowed(mostRedirects);
  request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Vitrelle"));
  for (const auto attribute :
       {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
        QNetworkRequest::AuthenticationReuseAttribute})
    request.setAttribute(attribute, QNetworkRequest::Manual);
  return request;
}

bool isOfTheNetwork(const QUrl& address) {
  return address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
}

} // namespace

ArtworkLoader::ArtworkLoader(ArtworkLimits limits, std::function<void()> onEnd)
    : limits_(limits), onEnd_(std::move(onEnd)) {
  threads_.setMaxThreadCount(2); // one that hangs, such as on a lost network drive, and another
  deadline_.setSingleShot(true);
  connect(&deadline_, &QTimer::timeout, this, [this] { end({}); });
}

ArtworkLoader::~ArtworkLoader() {
  giveUpFetching();
}

void ArtworkLoader::show(const QString& address) {
  giveUpFetching();
  ++turn_;
  deadline_.stop();
  address_ = address;
  const Kept* known = kept(address);
  picture_ = known == nullptr ? std::nullopt : std::optional(known->picture);
  if (address.startsWith(QStringLiteral("data:"), Qt::CaseInsensitive)) {
    if (known == nullptr) findIn(address);
    return;
  }
  const QUrl url(address);
  if (url.isLocalFile()) {
    findInFile(url.toLocalFile(), known == nullptr ? std::nullopt : known->file);
  } else if (known == nullptr && isOfTheNetwork(url)) {
    fetch(url);
  }
}

void ArtworkLoader::findIn(const QString& address) {
  if (address.size() > 2 * limits_.bytes) return;
  find([address, limits = limits_]() -> Found {
    return {.picture = decodeArtwork(bytesInAddress(address), limits)};
  });
}

void ArtworkLoader::findInFile(const QString& path, const std::optional<FileIdentity>& known) {
  find([path, known, limits = limits_]() -> Found {
    const auto file = readArtwork(path, limits, known);
    if (!file) return {};
    if (file->identity == known) return {.isKnown = true};
    return {.picture = decodeArtwork(file->bytes, limits), .file = file->identity};
  });
}

void ArtworkLoader::fetch(const QUrl& address) {
  if (!network_) network_ = std::make_unique<QNetworkAccessManager>();
  deadline_.start(limits_.patience);
  received_.clear();
  reply_ = network_->get(requestOf(address));
  connect(reply_, &QNetworkReply::readyRead, this, [this] { receive(); });
  connect(reply_, &QNetworkReply::finished, this, [this] {
    receive();
    if (reply_ == nullptr) return; // it was too much
    const bool isThere = reply_->error() == QNetworkReply::NoError;
    giveUpFetching();
    if (!isThere) return end({});
    find([bytes = std::exchange(received_, {}), limits = limits_]() -> Found {
      return {.picture = decodeArtwork(bytes, limits)};
    });
  });
}

void ArtworkLoader::receive() {
  received_ += reply_->readAll();
  if (received_.size() > limits_.bytes) end({});
}

void ArtworkLoader::giveUpFetching() {
  if (reply_ == nullptr) return;
  reply_->disconnect(this);
  reply_->abort();
  reply_->deleteLater();
  reply_ = nullptr;
}

void ArtworkLoader::find(std::function<Found()> work) {
  if (!deadline_.isActive()) deadline_.start(limits_.patience);
  threads_.start([this, turn = turn_, work = std::move(work)] {
    QMetaObject::invokeMethod(
        this,
        [this, turn, found = work()] {
          if (turn == turn_) end(found);
        },
        Qt::QueuedConnection);
  });
}

void ArtworkLoader::end(const Found& found) {
  ++turn_; // what comes later comes too late
  deadline_.stop();
  giveUpFetching();
  received_.clear();
  if (!found.isKnown) {
    picture_ = found.picture;
    keep(found);
  }
  onEnd_();
}

const ArtworkLoader::Kept* ArtworkLoader::kept(const QString& address) const {
  const auto found = std::ranges::find(kept_, address, &Kept::address);
  return found == kept_.end() ? nullptr : &*found;
}

void ArtworkLoader::keep(const Found& found) {
  std::erase_if(kept_, [this](const Kept& each) { return each.address == address_; });
  if (!found.picture) return;
  kept_.push_front({address_, found.file, *found.picture});
  if (kept_.size() > mostKept) kept_.pop_back();
}

} // namespace vitrelle::host
