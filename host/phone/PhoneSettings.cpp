#include "host/phone/PhoneSettings.h"

#include "host/desktop/FileWatch.h"
#include "host/files/PendingFile.h"
#include "host/phone/PhoneModels.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string_view>
#include <utility>

namespace vitrelle::host {

namespace {

const PhoneChoice phoneOfToday{.identifier = "iPhone16,1", .os = {18, 0, 0}, .zoomed = false};

struct AppearanceWord {
  AppearanceChoice value;
  std::string_view word;
};
constexpr AppearanceWord appearances[] = {{AppearanceChoice::desktop, "desktop"},
                                          {AppearanceChoice::light, "light"},
                                          {AppearanceChoice::dark, "dark"}};

/// The saved choice: a line "key=value" for each field. What is missing or garbled is as today's.
PhoneChoice savedChoice(const HomeFolder& home) {
  PhoneChoice choice = phoneOfToday;
  std::istringstream file(readSmallFile(home.phoneFile()).value_or(""));
  std::string line;
  while (std::getline(file, line)) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) continue;
    const std::string key = line.substr(0, equals);
    const std::string value = line.substr(equals + 1);
    const bool printable = std::ranges::all_of(value, [](char c) { return c > ' ' && c <= '~'; });
    // One without a comma is no phone's; a simulator's would simulate itself.
    const bool likely = printable && value.find(',') != std::string::npos;
    if (key == "identifier" && likely) choice.identifier = value;
    if (key == "zoomed") choice.zoomed = value == "true";
    const auto known = std::ranges::find(appearances, value, &AppearanceWord::word);
    if (key == "appearance" && known != std::end(appearances)) choice.appearance = known->value;
    long long major = 0;
    long long minor = 0;
    long long patch = 0;
    if (key == "os" &&
        std::sscanf(value.c_str(), "%9lld.%9lld.%9lld", &major, &minor, &patch) == 3) {
      choice.os = {major, minor, patch};
    }
  }
  return choice;
}

Status saveChoice(const HomeFolder& home, const PhoneChoice& choice) {
  const auto appearance = std::ranges::find(appearances, choice.appearance, &AppearanceWord::value);
  const std::string text = "identifier=" + choice.identifier +
                           "\nos=" + std::to_string(choice.os.major) + "." +
                           std::to_string(choice.os.minor) + "." + std::to_string(choice.os.patch) +
                           "\nzoomed=" + (choice.zoomed ? "true" : "false") +
                           "\nappearance=" + std::string(appearance->word) + "\n";
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  return replaceFile(home, home.phoneFile(), {bytes, text.size()});
}

/// What a simulator answers. Not the kernel's own word, which differs between kernels and under
/// personalities ("i686", "armv8l") where the program is the same.
MachineField simulatorMachine() {
#ifdef __aarch64__
  constexpr std::string_view machine = "arm64";
#else
  constexpr std::string_view machine = "x86_64";
#endif
  MachineField field{};
  std::ranges::copy(machine, field.begin());
  return field;
}

PhoneChoice overridden(const PhoneChoice& saved, const PhoneOverrides& overrides) {
  return {.identifier = overrides.identifier.value_or(saved.identifier),
          .os = overrides.os.value_or(saved.os),
          .zoomed = overrides.zoomed.value_or(saved.zoomed),
          .appearance = overrides.appearance.value_or(saved.appearance)};
}

class Phone final {
 public:
  Phone(HomeFolder home, PhoneOverrides overrides)
      : home_(std::move(home)),
        overrides_(std::move(overrides)),
        saved_(savedChoice(home_)),
        choice_(overridden(saved_, overrides_)) {}

  const PhoneChoice& choice() const { return choice_; }

  ScreenMode screen() const {
    const PhoneModel model = phoneModel(choice_.identifier);
    return choice_.zoomed ? model.zoomed : model.standard;
  }

  Status save(const PhoneChoice& chosen) {
    Status kept = saveChoice(home_, chosen);
    if (kept) saved_ = chosen;
    overrides_ = {};
    take(chosen);
    return kept;
  }

  Subscription watch(const EventLoop& loop, std::function<void(const PhoneChoice&)> subscriber) {
    if (!file_) {
      file_ = std::make_unique<Subscription>(
          watchFile(home_.phoneFile(), loop, [this] { readAgain(); }));
    }
    return watchers_.add(std::move(subscriber));
  }

 private:
  void readAgain() {
    const PhoneChoice now = savedChoice(home_);
    if (std::exchange(saved_, now) == now) return; // what this program has written
    take(overridden(now, overrides_));
  }

  void take(const PhoneChoice& choice) {
    if (std::exchange(choice_, choice) != choice) watchers_.notify(choice);
  }

  const HomeFolder home_;
  PhoneOverrides overrides_;
  PhoneChoice saved_; ///< as the file was when it was last read or written
  PhoneChoice choice_;
  Subscribers<const PhoneChoice&> watchers_;
  std::unique_ptr<Subscription> file_; ///< since somebody watches
};

std::optional<std::string> environmentOf(const Phone& phone, const std::string& name) {
  if (name == "SIMULATOR_MODEL_IDENTIFIER") return phone.choice().identifier;
  const char* const value = std::getenv(name.c_str());
  return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

} // namespace

PhoneOperations makePhone(const HomeFolder& home, const PhoneOverrides& overrides,
                          const EventLoop& loop) {
  const auto phone = std::make_shared<Phone>(home, overrides);
  return {
      .device = {
          .machine = simulatorMachine,
          .environment = [phone](const std::string& name) { return environmentOf(*phone, name); },
          .isOperatingSystemAtLeast =
              [phone](const OsVersion& version) { return phone->choice().os >= version; },
          .screenBounds = [phone] { return phone->screen().bounds; },
          .screenScale = [phone] { return phone->screen().scale; },
          .screenNativeScale = [phone] { return phone->screen().nativeScale; },
          .userInterfaceStyle = [phone]() -> std::int64_t {
            return phone->choice().appearance == AppearanceChoice::dark ? 2 : 1;
          }},
      .phoneBook = {.models = phoneModels,
                    .current = [phone] { return phone->choice(); },
                    .save = [phone](const PhoneChoice& chosen) { return phone->save(chosen); },
                    .watch =
                        [phone, loop](std::function<void(const PhoneChoice&)> subscriber) {
                          return phone->watch(loop, std::move(subscriber));
                        }}};
}

} // namespace vitrelle::host
