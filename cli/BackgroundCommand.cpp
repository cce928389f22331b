#include "cli/ColourArgument.h"
#include "cli/Command.h"
#include "cli/StoredWrite.h"

#include "core/slicing/SolidBackground.h"
#include "core/store/ColourComponents.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>
#include <optional>
#include <string>

namespace vitrelle::cli {

namespace {

struct BackgroundArguments {
  std::optional<std::string> colour;
  bool on = false;
  bool off = false;
  bool json = false;
};

/// The colour is that which widgets find: there may be none.
void print(const SolidBackground& solid, bool json) {
  const auto stored = solid.stored();
  if (json) {
    nlohmann::ordered_json document = {{"colour", nullptr}, {"on", solid.isOn()}};
    if (stored) document["colour"] = hexadecimal(*stored);
    std::cout << document.dump(2) << '\n';
    return;
  }
  std::cout << "colour = " << (stored ? hexadecimal(*stored) : "none") << '\n'
            << "on = " << (solid.isOn() ? "true" : "false") << '\n';
}

/// As the screen does. Whether the store took it all; complains if it did not.
bool write(const Platform& platform, SolidBackground& solid, const BackgroundArguments& told) {
  bool taken = true;
  const GroupStore store(platform);
  if (told.colour) {
    const PlatformColour colour = colourOf(*told.colour);
    solid.setColour(colour);
    taken = wasTaken(store, keys::backgroundSolid, colourComponents(colour));
  }
  if ((told.on || told.off) && taken) {
    solid.setOn(told.on);
    taken = wasTaken(store, keys::solidEnabled, told.on);
  }
  return taken;
}

Exit run(const Platform& platform, const BackgroundArguments& told) {
  if (const Status readable = GroupStore(platform).check(Suite::group); !readable) {
    complain(readable.failure());
    return Exit::failed;
  }
  SolidBackground solid(platform, [] {});
  const bool writes = told.colour || told.on || told.off;
  if (writes && !write(platform, solid, told)) return Exit::failed;
  if (!writes || told.json) print(solid, told.json);
  return Exit::done;
}

} // namespace

void addBackgroundCommand(CLI::App& program, CommandContext& context) {
  const auto told = std::make_shared<BackgroundArguments>();
  CLI::App* command = program.add_subcommand(
      "background", "Set the solid colour that widgets stand on, or print what is set");
  addColourOption(*command, told->colour);
  CLI::Option* on = command->add_flag("--on", told->on, "Widgets stand on the colour");
  command->add_flag("--off", told->off, "Widgets stand on their slices")->excludes(on);
  command->add_flag("--json", told->json, "Print what is set then as JSON");
  command->callback([told, &context] { context.exit = run(context.platform(), *told); });
}

} // namespace vitrelle::cli
