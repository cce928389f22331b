#include "cli/CutBatch.h"

#include "cli/CutStyle.h"
#include "cli/Interruption.h"
#include "cli/OneLine.h"
#include "cli/Progress.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string_view>
#include <system_error>

namespace vitrelle::cli {

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 5> extensions = {".png", ".jpg", ".jpeg", ".heic", ".heif"};

/// By the pairs' names.
using Pairs = std::map<std::string, Screenshots>;

bool isPicture(const fs::path& path) {
  std::string extension = path.extension().string();
  std::ranges::transform(extension, extension.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return std::ranges::count(extensions, extension) != 0;
}

Result<Pairs> findPairs(const std::string& folder) {
  Pairs pairs;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const fs::path& path = entry->path();
    const std::string stem = path.stem().string();
    if (!isPicture(path)) continue;
    for (const auto& [ending, slot] : {std::pair(std::string_view("-light"), &Screenshots::light),
                                       std::pair(std::string_view("-dark"), &Screenshots::dark)}) {
      if (stem.size() <= ending.size() || !stem.ends_with(ending)) continue;
      auto& place = pairs[stem.substr(0, stem.size() - ending.size())].*slot;
      // Of one name in several formats, the first by name, whatever the folder's own order.
      if (!place || path.string() < *place) place = path.string();
    }
  }
  if (error) return Failure{folder, error.message()};
  if (pairs.empty()) {
    return Failure{folder, "no pictures named NAME-light and NAME-dark lie there"};
  }
  return pairs;
}

/// The same platform with another folder in the place of the group's.
Platform intoFolder(const Platform& platform, const std::string& folder) {
  Platform other = platform;
  other.files.groupContainer = [folder] { return std::optional(folder); };
  other.shared = SharedInstances();
  return other;
}

} // namespace

Exit cutBatch(const CommandContext& context, const std::string& from, const std::string& into,
              bool json) {
  const auto pairs = findPairs(from);
  if (!pairs) {
    complain(pairs.failure());
    return Exit::failed;
  }
  const Platform platform = intoFolder(context.platform(), into);
  const Interruption interruption;
  const Progress progress(pairs->size());
  auto list = nlohmann::ordered_json::array();
  StyleNumber next;
  bool complete = true;
  for (const auto& [name, screenshots] : *pairs) {
    if (Interruption::came()) {
      complete = false;
      break;
    }
    progress.show(static_cast<std::size_t>(next.value), name);
    const StyleNumber number{next.value++};
    if (!screenshots.light || !screenshots.dark) {
      progress.clear();
      complain({name, screenshots.light ? "it has no dark picture" : "it has no light picture"});
      complete = false;
      continue;
    }
    const auto cut = cutStyle(platform, number, screenshots);
    progress.clear();
    if (!cut) {
      complain(cut.failure());
      complete = false;
      continue;
    }
    complete = complainOf(*cut) && complete;
    if (json) {
      list.push_back({{"style", number.value},
                      {"name", name},
                      {"files", writtenFiles(*cut)},
                      {"bytes", totalBytes(*cut)}});
    } else {
      std::printf("%3lld  %s  %zu files  %zu bytes\n", static_cast<long long>(number.value),
                  oneLine(name).c_str(), writtenFiles(*cut), totalBytes(*cut));
      std::fflush(stdout);
    }
  }
  if (json)
    std::printf("%s\n",
                list.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace).c_str());
  return complete ? Exit::done : Exit::failed;
}

} // namespace vitrelle::cli
