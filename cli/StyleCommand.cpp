#include "cli/Command.h"
#include "cli/CutStyle.h"
#include "core/app/ModernContentView.h"
#include "core/slicing/WallpaperIntake.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace vitrelle::cli {

namespace {

struct StyleArguments {
  std::int64_t number = 0;
  Screenshots screenshots;
  bool json = false;
};

std::string describe(PixelSize size) {
  return std::to_string(size.width) + "x" + std::to_string(size.height);
}

/// The styles as the application lists them: without those whose screenshots are not both there.
Exit list(const Platform& platform, bool json) {
  ModernContentView root(platform);
  root.reloadConfigs();
  auto styles = nlohmann::ordered_json::array();
  for (const VitrelleConfigData& style : root.vitrelleConfigs()) {
    const bool selected = root.isSelected(style.configNumber);
    const std::string light = describe(style.configImageLight.size());
    const std::string dark = describe(style.configImageDark.size());
    if (json) {
      styles.push_back({{"number", style.configNumber},
                        {"selected", selected},
                        {"light", light},
                        {"dark", dark}});
    } else {
      std::printf("%3lld  %-10s %-10s %s\n", static_cast<long long>(style.configNumber),
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

Exit store(const Platform& platform, WallpaperIntake& screen, const Screenshots& screenshots) {
  const auto cut = cutScreenshots(platform, screenshots, [&](const Image& image, auto style) {
    screen.choose(style);
    return screen.pick(image);
  });
  if (!cut) {
    complain(cut.failure());
    return Exit::failed;
  }
  return complainOf(*cut) ? Exit::done : Exit::failed;
}

/// By way of the application's own screen, with its counting and its taking back.
Exit makeNew(const Platform& platform, const Screenshots& screenshots) {
  const GroupStore store(platform);
  const auto amount = store.value(keys::amountOfConfigs);
  if (amount.value_or(0) >= ModernContentView::maximumStyles) {
    complain({"style new", "there are twelve styles already, and no more can be made"});
    return Exit::failed;
  }
  // As the application's first start would, which else would begin to count at 0 again.
  if (!amount) {
    store.set(keys::amountOfConfigs, std::int64_t{0});
    store.set(keys::selectedConfig, std::int64_t{0});
  }
  if (const auto version = platform.bundle.shortVersion();
      version && !store.value(keys::lastUsedAppVersion)) {
    store.set(keys::lastUsedAppVersion, *version);
  }
  if (!store.value(keys::amountOfConfigs)) {
    complain({"style new", "the store can't be written"});
    return Exit::failed;
  }
  ModernNewLightDark screen(platform);
  screen.appear();
  const std::int64_t number = screen.styleNumber();
  const Exit exit = cli::store(platform, screen, screenshots);
  screen.disappear();
  if (exit == Exit::done) std::printf("%lld\n", static_cast<long long>(number));
  return exit;
}

/// Whether there is such a style; complains if not.
bool exists(const Platform& platform, std::int64_t number) {
  const std::int64_t amount = GroupStore(platform).valueOrDefault(keys::amountOfConfigs);
  if (number >= 0 && number < amount) return true;
  complain({"style " + std::to_string(number),
            amount == 0 ? "there is no style yet"
                        : "there are only the styles 0 to " + std::to_string(amount - 1)});
  return false;
}

Exit change(const Platform& platform, const StyleArguments& arguments) {
  if (!exists(platform, arguments.number)) return Exit::failed;
  ModernChangeLightDark screen(platform, arguments.number);
  return store(platform, screen, arguments.screenshots);
}

Exit select(const Platform& platform, std::int64_t number) {
  if (!exists(platform, number)) return Exit::failed;
  ModernContentView(platform).selectConfig(number);
  if (GroupStore(platform).value(keys::selectedConfig) == number) return Exit::done;
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
    numbered->add_option("N", arguments->number, "The style's number, from 0")->required();
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
