// The service's last replies, kept so that it is asked no more often than it wants.
#pragma once

#include "core/platform/Defaults.h"
#include "host/files/HomeFolder.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace vitrelle::host {

/// The largest reply that is taken, and kept.
inline constexpr std::size_t largestReplyBytes = 4'000'000;

struct KeptReply {
  std::string url = {};          ///< that it answers
  std::string lastModified = {}; ///< in the server's own words; empty where it gave none
  std::int64_t fetched = 0;      ///< in seconds since the reference date
  std::int64_t freshSeconds = 0; ///< for which the server has nothing newer
  std::string body = {};
  bool operator==(const KeptReply&) const = default;

  /// Whatever the server said, for a day at most; and a clock that was put back makes nothing last
  /// longer.
  bool isFresh(const Date& now) const;
};

/// A file for each address in the home's cache folder, and few of them. The last reply is also held
/// in memory, for homes that can't be written to. For one thread.
class ReplyCache final {
 public:
  explicit ReplyCache(HomeFolder home) : home_(std::move(home)) {}

  /// Null for an address of which nothing is kept, or nothing sound.
  std::shared_ptr<const KeptReply> find(const std::string& url);
  /// In the place of the last one; one that can't be written is only held.
  void keep(KeptReply reply);

 private:
  std::string fileOf(const std::string& url) const;
  void removeOldest() const;

  HomeFolder home_;
  std::shared_ptr<const KeptReply> last_;
};

} // namespace vitrelle::host
