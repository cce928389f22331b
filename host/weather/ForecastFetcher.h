// Asks the weather service, as seldom as its terms want: what was kept answers while the service
// has nothing newer, several questions about one place are one request, and a service that failed
// is left in peace for a while.
#pragma once

#include "core/platform/WeatherService.h"
#include "host/weather/Download.h"
#include "host/weather/ReplyCache.h"
#include "host/weather/ServiceRest.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vitrelle::host {

struct FetchRules {
  std::string url;                            ///< of the service, to which the place is added
  std::string userAgent;                      ///< by which it knows who asks
  std::chrono::milliseconds patience;         ///< with one request
  std::chrono::milliseconds restAfterFailure; ///< in which it is not asked, unless it wants longer
};

/// Lives in a thread with an event loop of Qt's, where it reads, writes and parses.
class ForecastFetcher final : public QObject {
 public:
  using Ticket = std::uint64_t;
  using Answer = std::function<void(const std::vector<Ticket>&, const Result<Weather>&)>;

  ForecastFetcher(FetchRules rules, HomeFolder home, Answer answer);

  /// The answer is given once, sooner or later.
  void ask(Ticket ticket, const Coordinate& place, const Date& now);

 private:
  struct Question {
    std::string url;
    Date now;
    std::shared_ptr<const KeptReply> kept; ///< null where there is nothing of use
    std::optional<Weather> known = {};     ///< that it tells of
  };

  std::string urlOf(const Coordinate& place) const;
  void request(const Question& question);
  Result<Weather> take(const Question& question, const Download& reply);
  void keep(KeptReply kept, const Date& now, const Download& reply);
  void rest(const Download& reply);
  void answer(const std::string& url, const Result<Weather>& weather);

  FetchRules rules_;
  ReplyCache cache_;
  ServiceRest rest_;
  Answer answer_;
  std::unique_ptr<QNetworkAccessManager> manager_;   ///< from the first request on
  std::map<std::string, std::vector<Ticket>> asked_; ///< by address
};

} // namespace vitrelle::host
