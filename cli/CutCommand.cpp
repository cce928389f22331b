#include "cli/Command.h"
#include "cli/CutBatch.h"
#include "cli/CutStyle.h"
#include "cli/Interruption.h"
#include "cli/Numbers.h"
#include "core/slicing/Measurements.h"
#include "core/slicing/SlotOverview.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdio>
#include <memory>
#include <string>

namespace vitrelle::cli {

namespace {

using Clock = std::chrono::steady_clock;

struct CutArguments {
  StyleNumber style;
  Screenshots screenshots;
  std::string overview;
  std::string batch;
  std::string into;
  bool json = false;
};

nlohmann::ordered_json describe(const WidgetMeasurements& measurements) {
  return {{"widgetSize", measurements.widgetSize},
          {"topSpacing", measurements.topSpacing},
          {"leftSpacing", measurements.leftSpacing},
          {"horizontalSpacing", measurements.horizontalSpacing},
          {"verticalSpacing", measurements.verticalSpacing}};
}

void printJson(const Platform& platform, const CutStyle& cut, double seconds) {
  const PhoneChoice phone = platform.phoneBook.current();
  auto files = nlohmann::ordered_json::array();
  for (const StoredSlice& file : cut.files) {
    if (!file.bytes) continue;
    files.push_back({{"name", file.fileName},
                     {"width", file.size.width},
                     {"height", file.size.height},
                     {"bytes", *file.bytes}});
  }
  const nlohmann::ordered_json document = {
      {"phone", phoneName(platform)},
      {"os", cli::describe(phone.os)},
      {"zoomed", phone.zoomed},
      {"measurements", describe(Measurements::current(platform))},
      {"files", files},
      {"seconds", seconds}};
  std::printf("%s\n", document.dump(2).c_str());
}

void printLines(const CutStyle& cut) {
  for (const StoredSlice& file : cut.files) {
    if (!file.bytes) continue;
    const std::string size =
        std::to_string(file.size.width) + "x" + std::to_string(file.size.height);
    std::printf("%-28s %10s %10zu\n", file.fileName.c_str(), size.c_str(), *file.bytes);
  }
}

bool writeOverview(const Platform& platform, const CutArguments& arguments) {
  const auto& [light, dark] = arguments.screenshots;
  const Result<Image> screenshot = platform.images.load(light ? *light : *dark);
  if (!screenshot) {
    complain(screenshot.failure());
    return false;
  }
  const auto overview = slotOverview(*screenshot, Measurements::current(platform));
  if (!overview) {
    complain({arguments.overview, "the screenshot can't be drawn"});
    return false;
  }
  const PngFile file{arguments.overview, *overview};
  const auto written = platform.images.writePngFiles({&file, 1});
  if (!written.front()) complain(written.front().failure());
  return written.front().ok();
}

Exit cutOne(const CommandContext& context, const CutArguments& arguments) {
  const Platform& platform = context.platform();
  const auto lock = lockHome(platform);
  if (!lock) return Exit::failed;
  const Interruption interruption;
  const auto start = Clock::now();
  const Result<CutStyle> cut = cutStyle(platform, arguments.style, arguments.screenshots);
  if (!cut) {
    complain(cut.failure());
    return Exit::failed;
  }
  const std::chrono::duration<double> seconds = Clock::now() - start;
  const bool complete = complainOf(*cut);
  arguments.json ? printJson(platform, *cut, seconds.count()) : printLines(*cut);
  const bool drawn = arguments.overview.empty() || writeOverview(platform, arguments);
  return complete && drawn ? Exit::done : Exit::failed;
}

/// What the options' own checks can't say.
void checkUsage(const CutArguments& arguments, bool hasStyle) {
  const bool hasScreenshot = arguments.screenshots.light || arguments.screenshots.dark;
  if (!arguments.batch.empty()) {
    if (arguments.into.empty())
      throw CLI::RequiredError("--batch DIR also needs --into DIR, which");
    if (!arguments.overview.empty()) {
      throw CLI::ValidationError("--overview", "it goes with one style, not with --batch");
    }
    if (hasStyle || hasScreenshot) {
      throw CLI::ValidationError("--batch", "it numbers and finds the screenshots itself");
    }
    return;
  }
  if (!arguments.into.empty()) throw CLI::ValidationError("--into", "it goes with --batch");
  if (!hasStyle) throw CLI::RequiredError("--style N");
  if (!hasScreenshot) throw CLI::RequiredError("--light FILE or --dark FILE");
}

Exit run(const CommandContext& context, const CutArguments& arguments) {
  const Platform& platform = context.platform();
  if (!isMeasured(platform)) return Exit::unmeasuredPhone;
  if (arguments.batch.empty()) return cutOne(context, arguments);
  return cutBatch(context, arguments.batch, arguments.into, arguments.json);
}

} // namespace

void addCutCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command = program.add_subcommand(
      "cut", "Cut a light and a dark screenshot into the slices of a wallpaper style");
  const auto arguments = std::make_shared<CutArguments>();
  CLI::Option* style =
      command->add_option("--style", arguments->style.value, "The style's number, from 0")
          ->type_name("N")
          ->check(styleNumber());
  const auto addScreenshot = [&](const char* name, std::optional<std::string>& path,
                                 const char* description) {
    command
        ->add_option_function<std::string>(
            name, [&path](const std::string& text) { path = text; }, description)
        ->type_name("FILE");
  };
  addScreenshot("--light", arguments->screenshots.light, "The screenshot in light mode");
  addScreenshot("--dark", arguments->screenshots.dark, "The screenshot in dark mode");
  command
      ->add_option("--overview", arguments->overview,
                   "Also write a picture of the screenshot with the slots drawn over it")
      ->type_name("FILE");
  command
      ->add_option("--batch", arguments->batch,
                   "Cut each pair NAME-light and NAME-dark of a folder into a style of its own")
      ->type_name("DIR");
  command->add_option("--into", arguments->into, "The folder for the slices of a batch")
      ->type_name("DIR");
  command->add_flag("--json", arguments->json, "One JSON document");
  command->callback([&context, arguments, style] {
    checkUsage(*arguments, style->count() != 0);
    context.exit = run(context, *arguments);
  });
}

} // namespace vitrelle::cli
