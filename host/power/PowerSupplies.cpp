#include "host/power/PowerSupplies.h"

#include "core/platform/Battery.h"
#include "host/files/Descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <linux/netlink.h>
#include <sys/socket.h>

namespace vitrelle::host {

namespace {

namespace fs = std::filesystem;

/// Of one kind, in the unit of that kind.
struct Charge {
  double now = 0;
  double full = 0;
};

/// The two files that tell of a charge.
struct Measure {
  const char* now;
  const char* full;
};

/// In the order in which they are believed.
constexpr Measure measures[] = {{"energy_now", "energy_full"}, {"charge_now", "charge_full"}};

std::string lineIn(const fs::path& file) {
  std::string line;
  std::getline(std::ifstream(file), line);
  return line;
}

std::optional<double> numberIn(const fs::path& file) {
  const std::string line = lineIn(file);
  double number = 0;
  const auto [behind, error] = std::from_chars(line.data(), line.data() + line.size(), number);
  if (error != std::errc() || behind != line.data() + line.size() || number < 0)
    return std::nullopt;
  return number;
}

std::optional<Charge> chargeIn(const fs::path& battery, const Measure& measure) {
  const auto left = numberIn(battery / measure.now);
  const auto most = numberIn(battery / measure.full);
  if (!left || !most || *most == 0) return std::nullopt;
  return Charge{*left, *most};
}

std::optional<Charge> capacityIn(const fs::path& battery) {
  const auto percent = numberIn(battery / "capacity");
  if (!percent) return std::nullopt;
  return Charge{*percent, 100};
}

std::optional<Charge> anyChargeIn(const fs::path& battery) {
  for (const Measure& measure : measures) {
    if (const auto charge = chargeIn(battery, measure)) return charge;
  }
  return capacityIn(battery);
}

bool isOwnBattery(const fs::path& supply) {
  return lineIn(supply / "type") == "Battery" && lineIn(supply / "scope") != "Device" &&
         lineIn(supply / "present") != "0";
}

std::vector<fs::path> ownBatteries(const std::string& folder) {
  std::vector<fs::path> batteries;
  std::error_code none;
  for (fs::directory_iterator entry(folder, none), end; !none && entry != end;
       entry.increment(none)) {
    if (isOwnBattery(entry->path())) batteries.push_back(entry->path());
  }
  return batteries;
}

/// The sum, where every battery is told in this way.
template <class ChargeOf>
std::optional<Charge> sumOf(const std::vector<fs::path>& batteries, ChargeOf chargeOf) {
  Charge sum;
  for (const fs::path& battery : batteries) {
    const std::optional<Charge> charge = chargeOf(battery);
    if (!charge) return std::nullopt;
    sum.now += charge->now;
    sum.full += charge->full;
  }
  return sum;
}

float levelOf(const Charge& charge) {
  return static_cast<float>(std::clamp(charge.now / charge.full, 0.0, 1.0));
}

/// Reads all that the kernel has to tell; whether some of it is about power, or was lost.
bool drain(int descriptor) {
  constexpr std::string_view ours("SUBSYSTEM=power_supply");
  std::array<char, 8192> event;
  bool told = false;
  for (;;) {
    const ssize_t size = recv(descriptor, event.data(), event.size(), 0);
    if (size < 0 && errno == ENOBUFS) {
      told = true;
    } else if (size < 0) {
      return told;
    } else {
      const std::string_view words(event.data(), static_cast<std::size_t>(size));
      told = told || words.find(ours) != std::string_view::npos;
    }
  }
}

} // namespace

float batteryLevelIn(const std::string& folder) {
  std::vector<fs::path> batteries = ownBatteries(folder);
  std::erase_if(batteries, [](const fs::path& battery) { return !anyChargeIn(battery); });
  if (batteries.empty()) return unknownBatteryLevel;
  for (const Measure& measure : measures) {
    const auto sum =
        sumOf(batteries, [&](const fs::path& battery) { return chargeIn(battery, measure); });
    if (sum) return levelOf(*sum);
  }
  // Told in different ways they can't be weighed against each other.
  const auto average = sumOf(batteries, [](const fs::path& battery) -> std::optional<Charge> {
    const auto charge = anyChargeIn(battery);
    if (!charge) return std::nullopt; // it was taken out meanwhile
    return Charge{levelOf(*charge), 1};
  });
  return average ? levelOf(*average) : unknownBatteryLevel;
}

Subscription watchPowerSupplies(const EventLoop& loop, std::function<void()> onChange) {
  constexpr int type = SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC;
  auto events = std::make_shared<Descriptor>(socket(AF_NETLINK, type, NETLINK_KOBJECT_UEVENT));
  sockaddr_nl address{};
  address.nl_family = AF_NETLINK;
  address.nl_groups = 1; // the kernel's own
  const auto* plain = reinterpret_cast<const sockaddr*>(&address);
  if (!*events || bind(events->get(), plain, sizeof address) != 0) return {};
  auto readable = std::make_shared<Subscription>(
      loop.whenReadable(events->get(), [events, onChange = std::move(onChange)] {
        if (drain(events->get())) onChange();
      }));
  return Subscription([readable] { readable->cancel(); });
}

} // namespace vitrelle::host
