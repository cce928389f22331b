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
  const auto amount = GroupStore(platform).read(keys::amountOfConfigs);
  if (!amount) {
    complain(amount.failure());
    return Exit::failed;
  }
  // The action itself ends the program here; a person at a terminal is told why.
  if (amount->value_or(0) < 1) {
    complain({"shortcut", "there is no style yet; 'vitrelle style new' makes one"});
    return Exit::failed;
  }
  for (const std::string& name : ViewStringOptionsProvider(platform).results())
    std::printf("%s\n", name.c_str());
  return Exit::done;
}

Exit runAction(const Platform& platform, const std::optional<std::string>& style) {
  using Intent = ChangeVitrelleConfigIntent;
  std::optional<Failure> refused;
  Platform noting = platform;
  noting.defaults.set = [&](Suite suite, const std::string& key, const StoreValue& value) {
    Status written = platform.defaults.set(suite, key, value);
    if (!written) refused = written.failure();
    return written;
  };
  const auto outcome = Intent(noting).perform(style);
  if (const auto* question = std::get_if<Intent::NeedsValue>(&outcome)) {
    std::fprintf(stderr, "%s\n", std::string(question->dialog).c_str());
    return Exit::usage;
  }
  std::printf("%s\n", std::string(std::get<Intent::Done>(outcome).value).c_str());
  // The action says so whatever happened; the exit status does not.
  if (!refused) return Exit::done;
  complain(*refused);
  return Exit::failed;
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
