#include "host/weather/ForecastFetcher.h"

#include "host/weather/Forecast.h"

#include <QUrl>
#include <QUrlQuery>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <span>
#include <utility>

namespace vitrelle::host {

namespace {

Failure failure(const std::string& why) {
  return {"the weather service", why};
}

/// Degrees with four decimals at most: the service wants no more, for it keeps replies by place.
QString degrees(double value) {
  std::array<char, 32> text{};
  const auto [end, error] =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 4);
  std::string shown(text.data(), end);
  shown.erase(shown.find_last_not_of('0') + 1);
  if (shown.back() == '.') shown.pop_back();
  return QString::fromStdString(shown == "-0" ? "0" : shown);
}

std::span<const std::uint8_t> bytesOf(const std::string& text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// The moment to which the server's other times are related: its own present.
QDateTime presentOf(const Download& reply) {
  return reply.time("date").value_or(QDateTime::currentDateTimeUtc());
}

std::int64_t freshSeconds(const Download& reply) {
  const auto expires = reply.time("expires");
  return expires ? std::max<std::int64_t>(presentOf(reply).secsTo(*expires), 0) : 0;
}

/// Nothing where the server does not say when it wants to be asked again.
std::chrono::seconds retryAfter(const Download& reply) {
  bool isNumber = false;
  const qlonglong seconds = reply.header("retry-after").toLongLong(&isNumber);
  if (isNumber) return std::chrono::seconds(seconds);
  const auto time = reply.time("retry-after");
  return std::chrono::seconds(time ? presentOf(reply).secsTo(*time) : 0);
}

} // namespace

ForecastFetcher::ForecastFetcher(FetchRules rules, HomeFolder home, Answer answer)
    : rules_(std::move(rules)),
      cache_(home),
      rest_(std::move(home), rules_.url),
      answer_(std::move(answer)) {}

void ForecastFetcher::ask(Ticket ticket, const Coordinate& place, const Date& now) {
  Question question{.url = urlOf(place), .now = now, .kept = nullptr};
  std::vector<Ticket>& tickets = asked_[question.url];
  tickets.push_back(ticket);
  if (tickets.size() > 1) return;
  if (question.url.empty()) return answer(question.url, failure("there is no such place"));

  question.kept = cache_.find(question.url);
  if (question.kept) {
    const Result<Weather> known = readForecast(bytesOf(question.kept->body), now);
    if (known) question.known = *known;
  }
  if (question.known && question.kept->isFresh(now)) return answer(question.url, *question.known);
  if (rest_.lasts()) return answer(question.url, failure("it failed a short while ago"));
  request(question);
}

/// Empty for what is no place or can't be an address.
std::string ForecastFetcher::urlOf(const Coordinate& place) const {
  if (!(std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180)) return {};
  QUrl url(QString::fromStdString(rules_.url), QUrl::StrictMode);
  if (!url.isValid()) return {};
  QUrlQuery query(url);
  query.addQueryItem(QStringLiteral("lat"), degrees(place.latitude));
  query.addQueryItem(QStringLiteral("lon"), degrees(place.longitude));
  url.setQuery(query);
  return url.toEncoded(QUrl::RemoveFragment).toStdString();
}

void ForecastFetcher::request(const Question& question) {
  if (!manager_) manager_ = std::make_unique<QNetworkAccessManager>();
  QNetworkRequest request(QUrl::fromEncoded(QByteArray::fromStdString(question.url)));
  request.setRawHeader("User-Agent", QByteArray::fromStdString(rules_.userAgent));
  if (question.known && !question.kept->lastModified.empty())
    request.setRawHeader("If-Modified-Since",
                         QByteArray::fromStdString(question.kept->lastModified));
  download(*manager_, request, {.time = rules_.patience, .bytes = largestReplyBytes},
           [this, question](const Download& reply) {
             const Result<Weather> weather = take(question, reply);
             if (!weather && reply.wasReached) rest(reply);
             answer(question.url, weather);
           });
}

Result<Weather> ForecastFetcher::take(const Question& question, const Download& reply) {
  if (reply.status == 0) return failure(reply.trouble);
  if (reply.status == 304 && question.known) {
    keep(*question.kept, question.now, reply);
    return *question.known;
  }
  // 203 says that a newer edition of the service is there.
  if (reply.status != 200 && reply.status != 203)
    return failure("it answers with the status " + std::to_string(reply.status));
  KeptReply taken{.url = question.url, .body = reply.body.toStdString()};
  Result<Weather> weather = readForecast(bytesOf(taken.body), question.now);
  if (weather) keep(std::move(taken), question.now, reply);
  return weather;
}

void ForecastFetcher::keep(KeptReply kept, const Date& now, const Download& reply) {
  if (reply.time("last-modified")) kept.lastModified = reply.header("last-modified").toStdString();
  kept.fetched = static_cast<std::int64_t>(std::floor(now.secondsSinceReferenceDate));
  kept.freshSeconds = freshSeconds(reply);
  cache_.keep(std::move(kept));
}

void ForecastFetcher::rest(const Download& reply) {
  const std::chrono::milliseconds wanted = std::min(retryAfter(reply), ServiceRest::longest);
  rest_.begin(std::max(wanted, rules_.restAfterFailure));
}

void ForecastFetcher::answer(const std::string& url, const Result<Weather>& weather) {
  const auto asked = asked_.extract(url);
  if (asked_.empty() && manager_) manager_->clearConnectionCache(); // nothing is open meanwhile
  answer_(asked.mapped(), weather);
}

} // namespace vitrelle::host
