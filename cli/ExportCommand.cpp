#include "cli/Command.h"
#include "cli/Interruption.h"
#include "cli/Numbers.h"
#include "cli/Progress.h"
#include "core/slicing/WidgetLocation.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle::cli {

namespace {

namespace fs = std::filesystem;

struct ExportArguments {
  StyleNumber style;
  std::string appearance; ///< empty where the option of all commands holds, if it was told
  std::string size = "all";
  std::string into;
  bool force = false;
  bool json = false;
};

/// A stored slice on its way out.
struct Slice {
  std::string name;
  PixelSize size;
  Data bytes;
};

constexpr std::pair<const char*, InterfaceStyle> appearances[] = {{"light", lightStyle},
                                                                  {"dark", darkStyle}};
constexpr std::pair<const char*, WidgetFamily> sizes[] = {{"small", WidgetFamily::small},
                                                          {"medium", WidgetFamily::medium},
                                                          {"large", WidgetFamily::large}};

std::string pathIn(const std::string& folder, const std::string& name) {
  return (fs::path(folder) / name).string();
}

std::string appearanceOf(const ExportArguments& arguments, const Options& options) {
  if (!arguments.appearance.empty()) return arguments.appearance;
  // The desktop's own is no choice of one of them.
  const auto told = options.appearance.value_or(AppearanceChoice::desktop);
  return told == AppearanceChoice::desktop ? "both" : std::string(describe(told));
}

std::vector<std::string> fileNames(const ExportArguments& arguments,
                                   const std::string& appearance) {
  std::vector<std::string> names;
  for (const auto& [appearanceName, style] : appearances) {
    if (appearance != "both" && appearance != appearanceName) continue;
    for (const auto& [sizeName, family] : sizes) {
      if (arguments.size != "all" && arguments.size != sizeName) continue;
      for (const WidgetLocationImageNames slot : slots(family))
        names.push_back(sliceFileName(arguments.style, rawValue(slot), style));
    }
  }
  return names;
}

/// Why the export can't begin: a slice that is not there, or a file that is where it would go.
std::optional<Failure> obstacle(const Platform& platform, const std::string& folder,
                                const std::vector<std::string>& names,
                                const ExportArguments& arguments) {
  const auto listed = [](const std::vector<std::string>& some) {
    if (some.size() == 1) return some.front();
    return some.front() + " and " + std::to_string(some.size() - 1) + " more";
  };
  std::vector<std::string> missing;
  std::vector<std::string> inTheWay;
  for (const std::string& name : names) {
    std::error_code error;
    if (!platform.files.fileExists(pathIn(folder, name))) missing.push_back(name);
    if (fs::exists(fs::symlink_status(pathIn(arguments.into, name), error)))
      inTheWay.push_back(name);
  }
  const std::string style = "style " + std::to_string(arguments.style.value);
  if (missing.size() == names.size()) return Failure{style, "it has no such slices"};
  if (!missing.empty())
    return Failure{style, "slices are missing: " + listed(missing) + "; nothing was exported"};
  if (!inTheWay.empty() && !arguments.force)
    return Failure{arguments.into, "there already: " + listed(inTheWay) +
                                       "; nothing was exported (--force replaces)"};
  return std::nullopt;
}

/// All of them before the first is written, so that one that can't be read leaves nothing behind.
Result<std::vector<Slice>> read(const Platform& platform, const std::string& folder,
                                const std::vector<std::string>& names) {
  std::vector<Slice> slices;
  for (const std::string& name : names) {
    const Result<Image> image = platform.images.load(pathIn(folder, name));
    if (!image) return image.failure();
    Result<Data> bytes = image->fileData();
    if (!bytes) return bytes.failure();
    slices.push_back({name, image->size(), *std::move(bytes)});
  }
  return slices;
}

void tell(const ExportArguments& arguments, std::span<const Slice> slices) {
  auto files = nlohmann::ordered_json::array();
  for (const auto& [name, size, bytes] : slices) {
    if (arguments.json) {
      files.push_back({{"name", name},
                       {"width", size.width},
                       {"height", size.height},
                       {"bytes", bytes.size()}});
    } else {
      const std::string pixels = std::to_string(size.width) + "x" + std::to_string(size.height);
      std::printf("%-28s %10s %10zu\n", name.c_str(), pixels.c_str(), bytes.size());
    }
  }
  if (!arguments.json) return;
  const nlohmann::ordered_json document = {
      {"style", arguments.style.value}, {"into", arguments.into}, {"files", files}};
  std::printf(
      "%s\n",
      document.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace).c_str());
}

Exit run(const CommandContext& context, const ExportArguments& arguments) {
  const Platform& platform = context.platform();
  const auto folder = platform.files.groupContainer();
  if (!folder) {
    complain({"export", "there is no folder of slices"});
    return Exit::failed;
  }
  const auto names = fileNames(arguments, appearanceOf(arguments, context.options));
  if (const auto failure = obstacle(platform, *folder, names, arguments)) {
    complain(*failure);
    return Exit::failed;
  }
  const Interruption interruption;
  const auto slices = read(platform, *folder, names);
  if (!slices) {
    complain(slices.failure());
    return Exit::failed;
  }
  const Progress progress(slices->size());
  std::size_t written = 0;
  std::optional<Failure> failure;
  for (const Slice& slice : *slices) {
    if (Interruption::came()) failure = {"export", "it was interrupted"};
    if (failure) break;
    progress.show(written, slice.name);
    const Status done = context.writeFile(pathIn(arguments.into, slice.name), slice.bytes);
    if (done)
      ++written;
    else
      failure = done.failure();
  }
  progress.clear();
  if (failure) complain(*failure);
  tell(arguments, std::span(*slices).first(written));
  return failure ? Exit::failed : Exit::done;
}

} // namespace

void addExportCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command =
      program.add_subcommand("export", "Copy the stored slices of a style out of the home");
  const auto arguments = std::make_shared<ExportArguments>();
  command->add_option("--style", arguments->style.value, "The style's number, from 0")
      ->type_name("N")
      ->required()
      ->check(styleNumber());
  // Besides what the option of all commands takes. Told before the command's name, it is that one.
  command->add_option("--appearance", arguments->appearance, "light, dark or both, the default")
      ->type_name("NAME")
      ->check(CLI::IsMember({"light", "dark", "both"}));
  command->add_option("--size", arguments->size, "small, medium, large or all, the default")
      ->type_name("NAME")
      ->check(CLI::IsMember({"small", "medium", "large", "all"}));
  command->add_option("--into", arguments->into, "The folder for them, made where there is none")
      ->type_name("DIR")
      ->required()
      ->check([](const std::string& text) {
        return text.empty() ? std::string("the folder has no name") : std::string();
      });
  command->add_flag("--force", arguments->force, "Replace files of their names");
  command->add_flag("--json", arguments->json, "One JSON document");
  command->callback([&context, arguments] { context.exit = run(context, *arguments); });
}

} // namespace vitrelle::cli
