#include "cli/Command.h"

#include "core/app/Shortcuts.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace vitrelle::cli {

namespace {

Exit printOptions(const Platform& platform) {
  // The action itself ends the program here; a person at a terminal is told why.
  if (GroupStore(platform).valueOrDefault(keys::amountOfConfigs) < 1) {
    complain({"shortcut", "there is no style yet; 'vitrelle style new' makes one"});
    return Exit::failed;
  }
  for (const std::string& name : ViewStringOptionsProvider(platform).results())
    std::printf("%s\n", name.c_str());
  return Exit::done;
}

Exit runAction(const Platform& platform, const std::optional<std::string>& style) {
  using Intent = ChangeVitrelleConfigIntent;
  const auto outcome = Intent(platform).perform(style);
  if (const auto* question = std::get_if<Intent::NeedsValue>(&outcome)) {
    std::fprintf(stderr, "%s\n", std::string(question->dialog).c_str());
    return Exit::usage;
  }
  std::printf("%s\n", std::string(std::get<Intent::Done>(outcome).value).c_str());
  return Exit::done;
}

} // namespace

void addShortcutCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command =
      program.add_subcommand("shortcut", "The automation action that changes the style in use");
  command->require_subcommand(1);
  CLI::App* options = command->add_subcommand("options", "List what the action can be given");
  options->callback([&context] { context.exit = printOptions(context.platform()); });

  CLI::App* run = command->add_subcommand("run", "Run the action");
  const auto text = std::make_shared<std::string>();
  CLI::Option* given = run->add_option("TEXT", *text, "Such as 'Style 2'");
  run->callback([&context, text, given] {
    context.exit =
        runAction(context.platform(), given->count() == 0 ? std::nullopt : std::optional(*text));
  });
}

} // namespace vitrelle::cli
