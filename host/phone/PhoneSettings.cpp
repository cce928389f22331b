#include "host/phone/PhoneSettings.h"

#include "host/files/PendingFile.h"
#include "host/phone/PhoneModels.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string_view>

namespace vitrelle::host {

namespace {

const PhoneChoice phoneOfToday{.identifier = "iPhone16,1", .os = {18, 0, 0}, .zoomed = false};

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
  const std::string text = "identifier=" + choice.identifier +
                           "\nos=" + std::to_string(choice.os.major) + "." +
                           std::to_string(choice.os.minor) + "." + std::to_string(choice.os.patch) +
                           "\nzoomed=" + (choice.zoomed ? "true" : "false") + "\n";
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

} // namespace

PhoneChoice choosePhone(const HomeFolder& home, const PhoneOverrides& overrides) {
  const PhoneChoice saved = savedChoice(home);
  return {.identifier = overrides.identifier.value_or(saved.identifier),
          .os = overrides.os.value_or(saved.os),
          .zoomed = overrides.zoomed.value_or(saved.zoomed)};
}

PhoneBook makePhoneBook(const HomeFolder& home, const PhoneChoice& choice) {
  return {.models = phoneModels,
          .current = [choice] { return choice; },
          .save = [home](const PhoneChoice& chosen) { return saveChoice(home, chosen); },
          .watch = [](const std::function<void(const PhoneChoice&)>&) { return Subscription(); }};
}

Device makeDevice(const PhoneChoice& choice, bool dark) {
  const PhoneModel model = phoneModel(choice.identifier);
  const ScreenMode screen = choice.zoomed ? model.zoomed : model.standard;
  return {.machine = simulatorMachine,
          .environment = [identifier = choice.identifier](
                             const std::string& name) -> std::optional<std::string> {
            if (name == "SIMULATOR_MODEL_IDENTIFIER") return identifier;
            const char* const value = std::getenv(name.c_str());
            return value == nullptr ? std::nullopt : std::optional<std::string>(value);
          },
          .isOperatingSystemAtLeast =
              [os = choice.os](const OsVersion& version) { return os >= version; },
          .screenBounds = [screen] { return screen.bounds; },
          .screenScale = [screen] { return screen.scale; },
          .screenNativeScale = [screen] { return screen.nativeScale; },
          .userInterfaceStyle = [dark] { return std::int64_t{dark ? 2 : 1}; }};
}

} // namespace vitrelle::host
