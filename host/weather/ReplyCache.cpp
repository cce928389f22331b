#include "host/weather/ReplyCache.h"

#include "host/files/PendingFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace vitrelle::host {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kind = "vitrelle forecast 1";
constexpr const char* namePrefix = "forecast-";
constexpr std::size_t mostFiles = 8;
constexpr std::size_t mostHeadBytes = 4096;

/// The lines before the body: the kind, the address, the words about its age, three numbers.
std::string encode(const KeptReply& reply) {
  std::string text(kind);
  for (const std::string& line :
       {reply.url, reply.lastModified, std::to_string(reply.fetched),
        std::to_string(reply.freshSeconds), std::to_string(reply.body.size()), reply.body}) {
    text += '\n';
    text += line;
  }
  return text;
}

std::string_view takeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

std::optional<std::int64_t> takeNumber(std::string_view& text) {
  const std::string_view line = takeLine(text);
  std::int64_t number = 0;
  const auto [behind, error] = std::from_chars(line.data(), line.data() + line.size(), number);
  if (error != std::errc() || behind != line.data() + line.size()) return std::nullopt;
  return number;
}

std::optional<KeptReply> decode(std::string_view text) {
  if (takeLine(text) != kind) return std::nullopt;
  KeptReply reply;
  reply.url = takeLine(text);
  reply.lastModified = takeLine(text);
  const auto fetched = takeNumber(text);
  const auto freshSeconds = takeNumber(text);
  const auto size = takeNumber(text);
  if (!fetched || !freshSeconds || !size || !std::cmp_equal(*size, text.size()))
    return std::nullopt;
  reply.fetched = *fetched;
  reply.freshSeconds = *freshSeconds;
  reply.body = text;
  return reply;
}

/// The names of files are public in a way that their contents are not, so they tell no place.
std::string nameOf(std::string_view url) {
  std::uint64_t hash = 14695981039346656037U; // FNV-1a
  for (const char c : url)
    hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  std::array<char, 16> digits{};
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), hash, 16);
  return namePrefix + std::string(digits.data(), end);
}

} // namespace

bool KeptReply::isFresh(const Date& now) const {
  constexpr std::int64_t longestSeconds = 24 * 3600;
  const double age = now.secondsSinceReferenceDate - static_cast<double>(fetched);
  return age >= 0 && age < static_cast<double>(std::min(freshSeconds, longestSeconds));
}

std::string ReplyCache::fileOf(const std::string& url) const {
  return home_.cacheFolder() + "/" + nameOf(url);
}

std::shared_ptr<const KeptReply> ReplyCache::find(const std::string& url) {
  if (last_ && last_->url == url) return last_;
  const auto text = readSmallFile(fileOf(url), largestReplyBytes + mostHeadBytes);
  auto reply = text ? decode(*text) : std::nullopt;
  if (!reply || reply->url != url) return nullptr;
  return std::make_shared<const KeptReply>(*std::move(reply));
}

void ReplyCache::keep(KeptReply reply) {
  last_ = std::make_shared<const KeptReply>(std::move(reply));
  const std::string text = encode(*last_);
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  if (replaceFile(home_, fileOf(last_->url), {bytes, text.size()})) removeOldest();
}

void ReplyCache::removeOldest() const {
  std::vector<std::pair<fs::file_time_type, fs::path>> files;
  std::error_code none;
  for (fs::directory_iterator entry(home_.cacheFolder(), none), end; !none && entry != end;
       entry.increment(none)) {
    std::error_code gone;
    const auto written = entry->last_write_time(gone);
    if (!gone && entry->path().filename().string().starts_with(namePrefix))
      files.emplace_back(written, entry->path());
  }
  if (files.size() <= mostFiles) return;
  std::ranges::sort(files);
  for (std::size_t i = 0; i < files.size() - mostFiles; ++i)
    fs::remove(files[i].second, none);
}

} // namespace vitrelle::host
