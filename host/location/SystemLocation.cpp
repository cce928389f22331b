#include "host/location/SystemLocation.h"

#include "host/location/DesktopPositions.h"
#include "host/location/KeptChoice.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vitrelle::host {

namespace {

class SystemLocation final : public std::enable_shared_from_this<SystemLocation> {
 public:
  explicit SystemLocation(LocationSources sources)
      : sources_(std::move(sources)), choice_(keptChoice(sources_.home)) {}

  const LocationChoice& choice() const { return choice_; }

  Status save(const LocationChoice& chosen) {
    if (chosen.permission == AuthorizationStatus::restricted)
      return Failure{sources_.home.locationFile(), "a restriction is nobody's choice"};
    const Status kept = keepChoice(sources_.home, chosen);
    if (chosen == choice_) return kept;
    const std::optional<Coordinate> fixed = fixedPosition();
    choice_ = chosen;
    if (choice_.permission != AuthorizationStatus::notDetermined) asked_ = false;
    if (!followsDesktop()) last_.reset();
    follow();
    choices_.notify(chosen);
    statuses_.notify(status());
    if (const auto now = fixedPosition(); now && now != fixed) positions_.notify({*now});
    return kept;
  }

  Subscription watchChoice(std::function<void(const LocationChoice&)> subscriber) {
    subscriber(choice_);
    return choices_.add(std::move(subscriber));
  }

  AuthorizationStatus status() {
    const bool hasSource = choice_.source == LocationSource::place ||
                           (choice_.source == LocationSource::desktop && hasService());
    return hasSource ? choice_.permission : AuthorizationStatus::restricted;
  }

  Subscription watchStatus(std::function<void(AuthorizationStatus)> subscriber) {
    const AuthorizationStatus present = status();
    subscriber(present);
    return statuses_.add(
        [subscriber = std::move(subscriber),
         last = std::make_shared<AuthorizationStatus>(present)](AuthorizationStatus next) {
          if (std::exchange(*last, next) != next) subscriber(next);
        });
  }

  void request() {
    if (asked_ || !sources_.pages.ask || status() != AuthorizationStatus::notDetermined) return;
    // He is asked nothing that he might not be able to allow.
    isRequestWaiting_ = choice_.source == LocationSource::desktop && !hasService_;
    if (isRequestWaiting_) return;
    asked_ = true;
    sources_.pages.ask();
  }

  Subscription startUpdating(std::function<void(const std::vector<Coordinate>&)> subscriber) {
    if (const auto known = followsDesktop() ? last_ : fixedPosition()) subscriber({*known});
    auto listed = std::make_shared<Subscription>(positions_.add(std::move(subscriber)));
    follow();
    return Subscription([listed, weak = weak_from_this()] {
      listed->cancel();
      if (const auto self = weak.lock()) self->follow();
    });
  }

  bool hasService() {
    if (!std::exchange(isLookedFor_, true))
      lookUp_ = sources_.lookForService([this](bool hasService) { know(hasService); });
    return hasService_.value_or(true);
  }

  void openSettings() const {
    if (sources_.pages.openSettings) sources_.pages.openSettings();
  }

 private:
  void know(bool hasService) {
    hasService_ = hasService;
    follow();
    choices_.notify(LocationChoice(choice_));
    statuses_.notify(status());
    if (std::exchange(isRequestWaiting_, false)) request();
  }

  bool followsDesktop() {
    return choice_.source == LocationSource::desktop && isAuthorized(status()) &&
           hasService_.has_value();
  }

  std::optional<Coordinate> fixedPosition() {
    const bool isFixed = choice_.source == LocationSource::place && isAuthorized(status());
    if (!isFixed || !choice_.city) return std::nullopt;
    return choice_.city->position;
  }

  /// Asks the desktop's service exactly as long as somebody may be told.
  void follow() {
    const bool wanted = !positions_.empty() && followsDesktop();
    if (!wanted) {
      desktop_.reset();
    } else if (!desktop_) {
      desktop_ = sources_.follow([this](const Coordinate& position) {
        last_ = position;
        positions_.notify({position});
      });
    }
  }

  LocationSources sources_;
  LocationChoice choice_;
  bool isLookedFor_ = false;
  std::optional<bool> hasService_;
  bool isRequestWaiting_ = false; ///< until that is known
  bool asked_ = false;
  std::optional<Coordinate> last_; ///< that the desktop's service told
  Subscribers<const LocationChoice&> choices_;
  Subscribers<AuthorizationStatus> statuses_;
  Subscribers<const std::vector<Coordinate>&> positions_;
  std::optional<Subscription> desktop_;
  Subscription lookUp_; ///< last, for it calls this
};

/// For the bus, which usually answers in a millisecond.
constexpr std::chrono::milliseconds patience{250};

void use(Platform& platform, const HostOptions& options, LocationSources sources) {
  LocationOperations own = makeLocation(std::move(sources));
  platform.locationSettings = std::move(own.settings);
  if (options.location) {
    platform.location.openSettings = std::move(own.location.openSettings);
  } else {
    platform.location = std::move(own.location);
  }
}

std::function<Subscription(std::function<void(const Coordinate&)>)>
follower(const EventLoop& loop) {
  return [loop](std::function<void(const Coordinate&)> onPosition) {
    return followDesktop(loop, std::move(onPosition));
  };
}

} // namespace

LocationOperations makeLocation(LocationSources sources) {
  const auto own = std::make_shared<SystemLocation>(std::move(sources));
  return {.location = {.authorizationStatus = [own] { return own->status(); },
                       .watchAuthorization =
                           [own](std::function<void(AuthorizationStatus)> subscriber) {
                             return own->watchStatus(std::move(subscriber));
                           },
                       .requestWhenInUseAuthorization = [own] { own->request(); },
                       .startUpdatingLocation =
                           [own](std::function<void(const std::vector<Coordinate>&)> subscriber) {
                             return own->startUpdating(std::move(subscriber));
                           },
                       .openSettings = [own] { own->openSettings(); }},
          .settings = {.current = [own] { return own->choice(); },
                       .save = [own](const LocationChoice& choice) { return own->save(choice); },
                       .watch =
                           [own](std::function<void(const LocationChoice&)> subscriber) {
                             return own->watchChoice(std::move(subscriber));
                           },
                       .hasDesktopService = [own] { return own->hasService(); }}};
}

void useLocation(Platform& platform, const HostOptions& options, const EventLoop& loop,
                 LocationPages pages) {
  use(platform, options,
      {.home = options.home,
       .lookForService =
           [loop](std::function<void(bool)> done) {
             return lookForService(loop, patience, std::move(done));
           },
       .follow = follower(loop),
       .pages = std::move(pages)});
}

void useLocationAtOnce(Platform& platform, const HostOptions& options, const EventLoop& loop) {
  use(platform, options,
      {.home = options.home,
       .lookForService =
           [loop](const std::function<void(bool)>& done) {
             bool isThere = false;
             QEventLoop waiting;
             QTimer::singleShot(2 * patience, &waiting, &QEventLoop::quit);
             Subscription look = lookForService(loop, patience, [&](bool found) {
               isThere = found;
               waiting.quit();
             });
             waiting.exec();
             look.cancel(); // a later answer would find nobody here
             done(isThere);
             return Subscription();
           },
       .follow = follower(loop)});
}

} // namespace vitrelle::host
