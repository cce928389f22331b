// A platform in memory that behaves: a store that notifies, a folder that holds images, a phone
// and a console. `use` puts a fake's operations into a platform; the fake must outlive it.
#pragma once

#include "core/platform/Platform.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vitrelle::test {

/// Both suites. Those in `broken` can't be opened.
class FakeDefaults final {
 public:
  void use(Platform& platform);

  std::map<std::string, StoreValue>& values(Suite suite) { return values_[suite]; }
  std::set<Suite> broken;

 private:
  Status refuse(Suite suite) const;
  void changed(Suite suite, const std::string& key);

  std::map<Suite, std::map<std::string, StoreValue>> values_;
  Subscribers<Suite, const std::string&> changes_;
};

/// A group folder and its pictures. Names in `refused` can't be written.
class FakeFolder final {
 public:
  void use(Platform& platform);

  bool exists = true;
  std::map<std::string, Image> images; ///< by file name
  std::vector<std::string> written;    ///< file names in the order of writing
  std::set<std::string> refused;
  std::weak_ptr<const void> lock; ///< whoever holds it keeps others out at once
  static constexpr const char* root = "/group";
};

/// A phone: a real machine identifier, or "x86_64" with a simulated one in the environment. Another
/// one of its models may be chosen, whose screen it then has.
class FakePhone final {
 public:
  void use(Platform& platform);

  std::string machine = "iPhone16,1";
  std::map<std::string, std::string> environment;
  OsVersion os{18, 0, 0};
  PointSize bounds{393, 852};
  double scale = 3;
  double nativeScale = 3;
  std::int64_t userInterfaceStyle = 1;
  std::vector<PhoneModel> models;
  PhoneChoice choice{.identifier = "iPhone16,1", .os = {18, 0, 0}};
  bool full = false; ///< a choice can't be kept

 private:
  void choose(const PhoneChoice& chosen);

  Subscribers<const PhoneChoice&> choices_;
};

/// The debug lines in order, and how many reloads of the widgets were asked for.
class FakeConsole final {
 public:
  void use(Platform& platform);
  std::vector<std::string> lines;
  int reloads = 0;
};

/// What the application does around its screens: haptics by name, links that were passed on,
/// suspensions, requests for a review, and a queue whose time is moved by hand.
class FakeSurroundings final {
 public:
  void use(Platform& platform);
  /// Runs what is due within so many seconds from now.
  void pass(double seconds);

  std::vector<std::string> felt;
  std::vector<Notification> posted;
  int suspensions = 0;
  std::optional<ViewController> rootViewController;
  std::vector<Scene> scenes;
  std::vector<Scene> reviewsRequested;
  std::optional<std::string> version = "2.2";
  std::optional<std::string> receipt;
  std::vector<BannerRequest> banners;
  BannerDelegate bannerDelegate;
  int kitStarts = 0;

 private:
  struct Waiting {
    double due;
    std::function<void()> work;
  };
  double now_ = 0;
  std::uint64_t next_ = 0;
  std::map<std::uint64_t, Waiting> waiting_;
};

/// A clock that stands still until it is moved, in a place that is so many seconds ahead of UTC.
/// Its words are the codes of the styles and the seconds since midnight: "date 1 time 0 at 48600".
class FakeTime final {
 public:
  void use(Platform& platform);

  Date now{816960600}; ///< 2026-11-21 13:30 in UTC
  double secondsFromUtc = 0;

 private:
  double sinceMidnight(const Date& moment) const;
};

/// A battery whose level is moved by hand, and is unknown while nobody monitors it.
class FakeBattery final {
 public:
  void use(Platform& platform);
  void set(float level);

  bool monitored = false;

 private:
  float shown() const { return monitored ? level_ : unknownBatteryLevel; }

  float level_ = 0.75F;
  Subscribers<float> changes_;
};

/// A user who settles what his device may tell, and a device that is moved by hand.
class FakeLocation final {
 public:
  void use(Platform& platform);
  void authorize(AuthorizationStatus status);
  void move(std::vector<Coordinate> positions);

  LocationChoice choice; ///< its permission is the status
  bool full = false;     ///< what is settled can't be kept
  int requests = 0;
  int settingsOpened = 0;

 private:
  void settle(const LocationChoice& choice);

  Subscribers<AuthorizationStatus> answers_;
  Subscribers<const LocationChoice&> choices_;
  Subscribers<const std::vector<Coordinate>&> positions_;
};

/// Asks that wait until a test answers them, in the order in which they came. One whose
/// subscription has ended is no longer there.
template <class Question, class Answer>
class Pending final {
 public:
  using Completion = std::function<void(const Answer&)>;

  Subscription ask(Question question, Completion completion) {
    const std::uint64_t ticket = state_->next++;
    state_->waiting.emplace(ticket, std::pair(std::move(question), std::move(completion)));
    return Subscription([weak = std::weak_ptr<State>(state_), ticket] {
      if (const auto state = weak.lock()) state->waiting.erase(ticket);
    });
  }
  std::vector<Question> questions() const {
    std::vector<Question> questions;
    for (const auto& entry : state_->waiting)
      questions.push_back(entry.second.first);
    return questions;
  }
  /// Answers the oldest; false when none waits.
  bool answer(const Answer& answer) {
    if (state_->waiting.empty()) return false;
    const Completion completion = state_->waiting.begin()->second.second;
    state_->waiting.erase(state_->waiting.begin());
    completion(answer);
    return true;
  }

 private:
  struct State {
    std::uint64_t next = 0;
    std::map<std::uint64_t, std::pair<Question, Completion>> waiting;
  };
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

/// What lies in the clipboard: it may claim a picture that it has not.
class FakePasteboard final {
 public:
  void use(Platform& platform);

  bool hasImages = false;
  std::optional<Image> image;
};

/// The names of places, and the weather there.
class FakeGeocoder final {
 public:
  void use(Platform& platform);

  Pending<Coordinate, Result<std::vector<Placemark>>> asked;
  Pending<std::string, Result<std::vector<City>>> searched;
};

class FakeWeatherService final {
 public:
  void use(Platform& platform);

  Pending<Coordinate, Result<Weather>> asked;
  int attributions = 0;
};

/// A player that plays what it is told, and a service that answers when it is told.
class FakeMusicPlayer final {
 public:
  void use(Platform& platform);
  /// Tells those who listen.
  void play(MediaItem item, std::int64_t state = playback::playing);
  void notify() { changes_.notify(); }

  std::optional<MediaItem> item;
  std::int64_t state = playback::stopped;
  Pending<std::monostate, std::monostate> authorisations;
  Pending<std::monostate, bool> subscriptions;
  int offers = 0;

 private:
  Subscribers<> changes_;
};

/// A face in which every byte of a text is half as wide as its size, and a line as high with its
/// baseline a fifth above the bottom; lines never break. Nothing is drawn.
class FakeDrawing final {
 public:
  static void use(Platform& platform);
};

/// An opaque picture whose pixel at x, y is {x mod 256, y mod 256, x / 256 * 16 + y / 256, 255}, so
/// that a crop tells where it comes from.
Image positionImage(std::int32_t width, std::int32_t height, ColourProfile profile = {});

} // namespace vitrelle::test
