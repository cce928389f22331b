#include "cli/Command.h"
#include "cli/CutStyle.h"
#include "cli/Interruption.h"
#include "cli/Numbers.h"
#include "cli/StoredWrite.h"
#include "core/app/ModernContentView.h"
#include "core/slicing/WallpaperIntake.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace vitrelle::cli {

namespace {

struct StyleArguments {
  StyleNumber number;
  Screenshots screenshots;
  bool json = false;
};

std::string describe(PixelSize size) {
  return std::to_string(size.width) + "x" + std::to_string(size.height);
}

/// The styles as the application lists them: without those whose screenshots are not both there.
Exit list(const Platform& platform, bool json) {
  if (const Status readable = GroupStore(platform).check(Suite::group); !readable) {
    complain(readable.failure());
    return Exit::failed;
  }
  ModernContentView root(platform);
  root.reloadConfigs();
  auto styles = nlohmann::ordered_json::array();
  for (const VitrelleConfigData& style : root.vitrelleConfigs()) {
    const bool selected = root.isSelected(style.configNumber);
    const std::string light = describe(style.configImageLight.size());
    const std::string dark = describe(style.configImageDark.size());
    if (json) {
      styles.push_back({{"number", style.configNumber.value},
                        {"selected", selected},
                        {"light", light},
                        {"dark", dark}});
    } else {
      std::printf("%3lld  %-10s %-10s %s\n", static_cast<long long>(style.configNumber.value),
                  light.c_str(), dark.c_str(), selected ? "selected" : "");
    }
  }
  if (json) {
    const nlohmann::ordered_json document = {{"amount", root.amountOfConfigs()},
                                             {"styles", styles}};
    std::printf("%s\n", document.dump(2).c_str());
  }
  return Exit::done;
}

/// Cuts the screenshots into the style, and complains of what went wrong. Whether it can be used:
/// slots that lie outside of a screenshot are no hindrance.
bool store(const Platform& platform, StyleNumber number, const Screenshots& screenshots) {
  const auto cut = cutStyle(platform, number, screenshots);
  if (!cut) {
    complain(cut.failure());
    return false;
  }
  complainOf(*cut);
  return std::ranges::all_of(cut->files, [](const StoredSlice& file) { return file.bytes.ok(); });
}

/// Sets the key; complains if it is not stored then.
template <class T>
bool stored(const Platform& platform, const Key<T>& key, const T& value) {
  const GroupStore store(platform);
  store.set(key, value);
  return wasTaken(store, key, value);
}

/// What the application's first start would write, which else would begin to count at 0 again.
bool prepareStore(const Platform& platform, bool hasAmount) {
  const auto version = GroupStore(platform).read(keys::lastUsedAppVersion);
  if (!version) {
    complain(version.failure());
    return false;
  }
  if (*version && isOfFirstGeneration(**version)) {
    complain({"style new", "version " + **version +
                               " was here before; start vitrelle-app first, "
                               "which takes its style over"});
    return false;
  }
  const auto current = platform.bundle.shortVersion();
  return (hasAmount || (stored(platform, keys::amountOfConfigs, std::int64_t{0}) &&
                        stored(platform, keys::selectedConfig, std::int64_t{0}))) &&
         (*version || !current || stored(platform, keys::lastUsedAppVersion, *current));
}

/// The style counts last: whatever ends the program before, its number is the next one's again.
Exit makeNew(const Platform& platform, const Screenshots& screenshots) {
  const auto lock = lockHome(platform);
  if (!lock) return Exit::failed;
  const Interruption interruption;
  judgeAbandonedStyle(platform);
  const auto amount = GroupStore(platform).read(keys::amountOfConfigs);
  if (!amount) {
    complain(amount.failure());
    return Exit::failed;
  }
  const std::int64_t number = amount->value_or(0);
  if (number < 0) {
    complain({keys::amountOfConfigs.name, "there can't be " + std::to_string(number) + " styles"});
    return Exit::failed;
  }
  if (number >= ModernContentView::maximumStyles) {
    complain({"style new", "there are twelve styles already, and no more can be made"});
    return Exit::failed;
  }
  if (!prepareStore(platform, amount->has_value())) return Exit::failed;
  if (!store(platform, {number}, screenshots) || Interruption::came() ||
      !stored(platform, keys::amountOfConfigs, number + 1)) {
    complain({"style new", "no style was made"});
    return Exit::failed;
  }
  platform.widgetCenter.reloadAllTimelines(); // an open window lists the style now that it counts
  std::printf("%lld\n", static_cast<long long>(number));
  return Exit::done;
}

/// Whether there is such a style; complains if not.
bool exists(const Platform& platform, StyleNumber number) {
  const auto stored = GroupStore(platform).read(keys::amountOfConfigs);
  if (!stored) {
    complain(stored.failure());
    return false;
  }
  const std::int64_t amount = stored->value_or(0);
  if (number.value >= 0 && number.value < amount) return true;
  complain({"style " + std::to_string(number.value),
            amount <= 0 ? "there is no style yet"
                        : "there are only the styles 0 to " + std::to_string(amount - 1)});
  return false;
}

Exit change(const Platform& platform, const StyleArguments& arguments) {
  const auto lock = lockHome(platform);
  const Interruption interruption;
  if (!lock || !exists(platform, arguments.number)) return Exit::failed;
  const auto cut = cutStyle(platform, arguments.number, arguments.screenshots);
  if (!cut) {
    complain(cut.failure());
    return Exit::failed;
  }
  // Slots that could not be cut still show the wallpaper of before.
  return complainOf(*cut) ? Exit::done : Exit::failed;
}

Exit select(const Platform& platform, StyleNumber number) {
  if (!exists(platform, number)) return Exit::failed;
  ModernContentView(platform).selectConfig(number);
  if (GroupStore(platform).value(keys::selectedConfig) == number.value) return Exit::done;
  complain({"style select", "the store can't be written"});
  return Exit::failed;
}

CLI::Option* addScreenshot(CLI::App& command, const char* name, std::optional<std::string>& path,
                           const char* description) {
  return command
      .add_option_function<std::string>(
          name, [&path](const std::string& text) { path = text; }, description)
      ->type_name("FILE");
}

} // namespace

void addStyleCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command = program.add_subcommand("style", "List, make, change and select styles");
  command->require_subcommand(1);
  const auto arguments = std::make_shared<StyleArguments>();

  CLI::App* listing = command->add_subcommand("list", "List the styles");
  listing->add_flag("--json", arguments->json, "One JSON document");
  listing->callback(
      [&context, arguments] { context.exit = list(context.platform(), arguments->json); });

  CLI::App* making = command->add_subcommand("new", "Make a style; prints its number, from 0");
  CLI::App* changing = command->add_subcommand("change", "Replace screenshots of a style");
  CLI::App* selecting = command->add_subcommand("select", "Put a style to use");
  for (CLI::App* numbered : {changing, selecting}) {
    numbered->add_option("N", arguments->number.value, "The style's number, from 0")
        ->required()
        ->check(styleNumber());
  }
  for (CLI::App* taking : {making, changing}) {
    const bool both = taking == making;
    addScreenshot(*taking, "--light", arguments->screenshots.light, "The screenshot in light mode")
        ->required(both);
    addScreenshot(*taking, "--dark", arguments->screenshots.dark, "The screenshot in dark mode")
        ->required(both);
  }
  making->callback([&context, arguments] {
    context.exit = Exit::unmeasuredPhone;
    if (isMeasured(context.platform())) {
      context.exit = makeNew(context.platform(), arguments->screenshots);
    }
  });
  changing->callback([&context, arguments] {
    if (!arguments->screenshots.light && !arguments->screenshots.dark) {
      throw CLI::RequiredError("--light FILE or --dark FILE");
    }
    context.exit = Exit::unmeasuredPhone;
    if (isMeasured(context.platform())) context.exit = change(context.platform(), *arguments);
  });
  selecting->callback(
      [&context, arguments] { context.exit = select(context.platform(), arguments->number); });
}

} // namespace vitrelle::cli
