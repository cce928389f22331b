#include "host/weather/ServiceRest.h"

#include "host/files/PendingFile.h"

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <utility>

namespace vitrelle::host {

namespace {

constexpr const char* kind = "vitrelle rest 1";

/// By the machine's own clock: the time that a program is told to stand at is none of the
/// service's.
std::int64_t unixMilliseconds() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

} // namespace

ServiceRest::ServiceRest(HomeFolder home, std::string url)
    : home_(std::move(home)), url_(std::move(url)) {}

/// What is garbled there is no rest, nor is one that has not begun yet: a clock that was put back
/// would make it last.
bool ServiceRest::lasts() const {
  if (std::chrono::steady_clock::now() < until_) return true;
  std::istringstream kept(readSmallFile(file()).value_or(""));
  std::string keptKind;
  std::string keptUrl;
  std::int64_t begun = 0;
  std::int64_t end = 0;
  std::getline(kept, keptKind);
  std::getline(kept, keptUrl);
  if (!(kept >> begun >> end) || keptKind != kind || keptUrl != url_) return false;
  const std::int64_t now = unixMilliseconds();
  return begun > 0 && begun <= now && now < end &&
         now - begun < std::chrono::milliseconds(longest).count();
}

void ServiceRest::begin(std::chrono::milliseconds length) {
  const std::chrono::milliseconds bounded = std::clamp<std::chrono::milliseconds>(
      length, std::chrono::milliseconds(0), std::chrono::milliseconds(longest));
  if (bounded.count() == 0) return;
  until_ = std::chrono::steady_clock::now() + bounded;
  const std::int64_t begun = unixMilliseconds();
  std::ostringstream lines;
  lines << kind << '\n' << url_ << '\n' << begun << ' ' << begun + bounded.count() << '\n';
  const std::string text = lines.str();
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  // This program knows without it.
  static_cast<void>(replaceFile(home_, file(), {bytes, text.size()}));
}

} // namespace vitrelle::host
