#include "tests/support/Fakes.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace vitrelle::test {

Status FakeDefaults::refuse(Suite suite) const {
  return Failure{suite == Suite::group ? "group store" : "standard store", "can't be opened"};
}

void FakeDefaults::changed(Suite suite, const std::string& key) {
  changes_.notify(suite, key);
}

void FakeDefaults::use(Platform& platform) {
  const auto current = [this](Suite suite, const std::string& key) -> std::optional<StoreValue> {
    const auto found = values_[suite].find(key);
    if (found == values_[suite].end() || broken.contains(suite)) return std::nullopt;
    return found->second;
  };
  platform.defaults = {
      .value = [this, current](Suite suite,
                               const std::string& key) -> Result<std::optional<StoreValue>> {
        if (broken.contains(suite)) return refuse(suite).failure();
        return current(suite, key);
      },
      .set = [this](Suite suite, const std::string& key, const StoreValue& value) -> Status {
        if (broken.contains(suite)) return refuse(suite);
        values_[suite].insert_or_assign(key, value);
        changed(suite, key);
        return success();
      },
      .remove = [this](Suite suite, const std::string& key) -> Status {
        if (broken.contains(suite)) return refuse(suite);
        values_[suite].erase(key);
        changed(suite, key);
        return success();
      },
      .keys = [this](Suite suite) -> Result<std::vector<std::string>> {
        if (broken.contains(suite)) return refuse(suite).failure();
        std::vector<std::string> keys;
        for (const auto& entry : values_[suite])
          keys.push_back(entry.first);
        return keys;
      },
      .watch =
          [this, current](Suite suite, const std::string& key,
                          std::function<void(const std::optional<StoreValue>&)> subscriber) {
            subscriber(current(suite, key));
            return changes_.add([=](Suite changedSuite, const std::string& changedKey) {
              if (changedSuite == suite && changedKey == key) subscriber(current(suite, key));
            });
          },
      .watchKeys =
          [this](Suite suite, std::function<void(const std::string&)> subscriber) {
            return changes_.add([=](Suite changedSuite, const std::string& changedKey) {
              if (changedSuite == suite) subscriber(changedKey);
            });
          }};
}

namespace {

std::string fileName(const std::string& path) {
  const std::string prefix = std::string(FakeFolder::root) + "/";
  return path.starts_with(prefix) ? path.substr(prefix.size()) : path;
}

} // namespace

void FakeFolder::use(Platform& platform) {
  platform.files = {.groupContainer = [this]() -> std::optional<std::string> {
                      if (!exists) return std::nullopt;
                      return root;
                    },
                    .fileExists =
                        [this](const std::string& path) {
                          const std::string name = fileName(path);
                          return name == "." ? exists : images.contains(name);
                        },
                    .lock = [this](double) -> Result<HomeLock> {
                      if (lock.lock())
                        return Failure{root, "another program is changing its styles"};
                      const auto held = std::make_shared<const int>();
                      lock = held;
                      return HomeLock(held);
                    }};
  platform.images.load = [this](const std::string& path) -> Result<Image> {
    const auto found = images.find(fileName(path));
    if (found == images.end()) return Failure{path, "no such file"};
    return found->second;
  };
  platform.images.resized = [](const Image&, const PixelSize& size) -> Result<Image> {
    return positionImage(size.width, size.height);
  };
  platform.images.writePngFiles = [this](std::span<const PngFile> files) {
    std::vector<Result<std::size_t>> results;
    for (const PngFile& file : files) {
      const std::string name = fileName(file.path);
      const Result<Bitmap> bitmap = file.image.bitmap();
      const bool hasPixels = bitmap && bitmap->size.width > 0;
      if (!exists || !hasPixels || refused.contains(name)) {
        results.emplace_back(Failure{file.path, "can't be written"});
        continue;
      }
      written.push_back(name);
      images.insert_or_assign(name, file.image);
      results.emplace_back(std::size_t{1});
    }
    return results;
  };
}

void FakePhone::use(Platform& platform) {
  platform.device = {
      .machine =
          [this] {
            MachineField field{};
            std::copy(machine.begin(), machine.end(), field.begin());
            return field;
          },
      .environment = [this](const std::string& name) -> std::optional<std::string> {
        const auto found = environment.find(name);
        if (found == environment.end()) return std::nullopt;
        return found->second;
      },
      .isOperatingSystemAtLeast = [this](const OsVersion& version) { return os >= version; },
      .screenBounds = [this] { return bounds; },
      .screenScale = [this] { return scale; },
      .screenNativeScale = [this] { return nativeScale; },
      .userInterfaceStyle = [this] { return userInterfaceStyle; }};
  platform.phoneBook = {.models = [this] { return models; },
                        .current = [this] { return choice; },
                        .save = [this](const PhoneChoice& chosen) -> Status {
                          choose(chosen);
                          if (full) return Failure{"phone", "the disk is full"};
                          return success();
                        },
                        .watch =
                            [this](std::function<void(const PhoneChoice&)> subscriber) {
                              return choices_.add(std::move(subscriber));
                            }};
}

void FakePhone::choose(const PhoneChoice& chosen) {
  choice = chosen;
  machine = chosen.identifier;
  os = chosen.os;
  for (const PhoneModel& model : models) {
    if (std::ranges::count(model.identifiers, chosen.identifier) == 0) continue;
    const ScreenMode& screen = chosen.zoomed ? model.zoomed : model.standard;
    bounds = screen.bounds;
    scale = screen.scale;
    nativeScale = screen.nativeScale;
  }
  if (chosen.appearance != AppearanceChoice::desktop)
    userInterfaceStyle = chosen.appearance == AppearanceChoice::dark ? 2 : 1;
  choices_.notify(chosen);
}

void FakeConsole::use(Platform& platform) {
  platform.debugConsole.print = [this](const std::string& line) { lines.push_back(line); };
  platform.widgetCenter.reloadAllTimelines = [this] { ++reloads; };
}

void FakeSurroundings::use(Platform& platform) {
  platform.haptics = {.success = [this] { felt.emplace_back("success"); },
                      .error = [this] { felt.emplace_back("error"); },
                      .lightImpact = [this] { felt.emplace_back("light impact"); },
                      .mediumImpact = [this] { felt.emplace_back("medium impact"); }};
  platform.notificationCentre.post = [this](const Notification& note) { posted.push_back(note); };
  platform.application = {.suspend = [this] { ++suspensions; },
                          .rootViewController = [this] { return rootViewController; },
                          .connectedScenes = [this] { return scenes; }};
  platform.reviewController.requestReview = [this](const Scene& scene) {
    reviewsRequested.push_back(scene);
  };
  platform.bundle.shortVersion = [this] { return version; };
  platform.bundle.appStoreReceiptURL = [this] { return receipt; };
  platform.bannerKit = {.start = [this] { ++kitStarts; },
                        .load =
                            [this](const BannerRequest& request, BannerDelegate delegate) {
                              banners.push_back(request);
                              bannerDelegate = std::move(delegate);
                            }};
  platform.mainQueue.asyncAfter = [this](double seconds, std::function<void()> work) {
    const std::uint64_t ticket = next_++;
    waiting_.emplace(ticket, Waiting{now_ + seconds, std::move(work)});
    return Subscription([this, ticket] { waiting_.erase(ticket); });
  };
}

void FakeSurroundings::pass(double seconds) {
  now_ += seconds;
  for (auto next = waiting_.begin(); next != waiting_.end(); next = waiting_.begin()) {
    next = std::find_if(next, waiting_.end(),
                        [this](const auto& entry) { return entry.second.due <= now_; });
    if (next == waiting_.end()) return;
    const auto work = next->second.work;
    waiting_.erase(next);
    work();
  }
}

void FakeTime::use(Platform& platform) {
  platform.dateTime = {.now = [this] { return now; },
                       .startOfDay =
                           [this](const Date& moment) {
                             return Date{moment.secondsSinceReferenceDate - sinceMidnight(moment)};
                           },
                       .text =
                           [this](const Date& moment, FormatterStyle date, FormatterStyle time) {
                             return "date " + std::to_string(static_cast<int>(date)) + " time " +
                                    std::to_string(static_cast<int>(time)) + " at " +
                                    std::to_string(static_cast<int>(sinceMidnight(moment)));
                           }};
}

double FakeTime::sinceMidnight(const Date& moment) const {
  constexpr double day = 86400;
  const double local = moment.secondsSinceReferenceDate + secondsFromUtc;
  return local - std::floor(local / day) * day;
}

void FakeBattery::use(Platform& platform) {
  platform.battery = {.setMonitoringEnabled = [this](bool on) { monitored = on; },
                      .level = [this] { return shown(); },
                      .watch =
                          [this](std::function<void(float)> subscriber) {
                            subscriber(shown());
                            return changes_.add(std::move(subscriber));
                          }};
}

void FakeBattery::set(float level) {
  level_ = level;
  changes_.notify(shown());
}

void FakeLocation::use(Platform& platform) {
  platform.location = {.authorizationStatus = [this] { return choice.permission; },
                       .watchAuthorization =
                           [this](std::function<void(AuthorizationStatus)> subscriber) {
                             subscriber(choice.permission);
                             return answers_.add(std::move(subscriber));
                           },
                       .requestWhenInUseAuthorization = [this] { ++requests; },
                       .startUpdatingLocation =
                           [this](std::function<void(const std::vector<Coordinate>&)> subscriber) {
                             return positions_.add(std::move(subscriber));
                           },
                       .openSettings = [this] { ++settingsOpened; }};
  platform.locationSettings = {.current = [this] { return choice; },
                               .save = [this](const LocationChoice& told) -> Status {
                                 settle(told);
                                 if (full) return Failure{"location", "the disk is full"};
                                 return success();
                               },
                               .watch =
                                   [this](std::function<void(const LocationChoice&)> subscriber) {
                                     subscriber(choice);
                                     return choices_.add(std::move(subscriber));
                                   },
                               .hasDesktopService = [] { return true; }};
}

void FakeLocation::settle(const LocationChoice& told) {
  choice = told;
  choices_.notify(told);
  answers_.notify(told.permission);
}

void FakeLocation::authorize(AuthorizationStatus status) {
  LocationChoice told = choice;
  told.permission = status;
  settle(told);
}

void FakeLocation::move(std::vector<Coordinate> positions) {
  positions_.notify(positions);
}

void FakePasteboard::use(Platform& platform) {
  platform.pasteboard = {.hasImages = [this] { return hasImages; },
                         .image = [this] { return image; }};
}

void FakeGeocoder::use(Platform& platform) {
  platform.geocoder = {
      .reverseGeocodeLocation = [this](const Coordinate& position,
                                       auto done) { return asked.ask(position, std::move(done)); },
      .search = [this](const std::string& words, std::size_t,
                       auto done) { return searched.ask(words, std::move(done)); }};
}

void FakeWeatherService::use(Platform& platform) {
  platform.weatherService = {
      .weather = [this](const Coordinate& position,
                        auto done) { return asked.ask(position, std::move(done)); },
      .openAttribution = [this] { ++attributions; }};
}

void FakeMusicPlayer::use(Platform& platform) {
  platform.musicPlayer = {
      .nowPlayingItem = [this] { return item; },
      .playbackState = [this] { return state; },
      .onNowPlayingItemChange =
          [this](std::function<void()> subscriber) { return changes_.add(std::move(subscriber)); },
      .requestAuthorization =
          [this](std::function<void()> done) {
            return authorisations.ask({}, [done = std::move(done)](std::monostate) { done(); });
          },
      .currentSubscription =
          [this](std::function<void(bool)> done) { return subscriptions.ask({}, std::move(done)); },
      .presentOffer =
          [this] {
            ++offers;
            return true;
          }};
}

void FakeMusicPlayer::play(MediaItem playing, std::int64_t now) {
  item = std::move(playing);
  state = now;
  notify();
}

void FakeDrawing::use(Platform& platform) {
  platform.drawing = {
      .textSize =
          [](const std::string& text, const Font& font, const PointSize& room) {
            const double width = static_cast<double>(text.size()) * font.size / 2;
            return PointSize{std::min(width, room.width), font.size};
          },
      .lastBaseline = [](const std::string&, const Font& font,
                         const PointSize&) { return font.size * 0.8; },
      .render = [](std::span<const DisplayList>, const PointRect&, double) -> Result<Image> {
        return Failure{"drawing", "nothing is drawn"};
      }};
}

Image positionImage(std::int32_t width, std::int32_t height, ColourProfile profile) {
  const auto pixels = std::make_shared<std::vector<std::uint8_t>>();
  for (std::int32_t y = 0; y < height; ++y) {
    for (std::int32_t x = 0; x < width; ++x) {
      for (const std::int32_t sample : {x % 256, y % 256, x / 256 * 16 + y / 256, 255}) {
        pixels->push_back(static_cast<std::uint8_t>(sample));
      }
    }
  }
  return Image(Bitmap{.size = {width, height},
                      .bytesPerRow = static_cast<std::size_t>(width) * 4,
                      .pixels = pixels->data(),
                      .opaque = true,
                      .owner = pixels},
               std::move(profile));
}

} // namespace vitrelle::test
