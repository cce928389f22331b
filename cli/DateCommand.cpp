#include "cli/ColourArgument.h"
#include "cli/Command.h"
#include "cli/Numbers.h"
#include "cli/OneLine.h"
#include "cli/StoredWrite.h"

#include "core/centre/CustomDateTextView.h"
#include "core/pickers/FontPicker.h"
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

struct DateArguments {
  std::optional<std::string> font;
  std::optional<std::int64_t> size;
  std::optional<std::string> colour;
  bool json = false;
};

void print(const CustomDateTextView& date, bool json) {
  const std::string colour = hexadecimal(date.dateColour());
  if (json) {
    const nlohmann::ordered_json document = {
        {"font", date.dateFontPicked()}, {"size", date.dateFontSize()}, {"colour", colour}};
    std::cout << document.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return;
  }
  std::cout << "font = " << quotedLine(date.dateFontPicked()) << '\n'
            << "size = " << date.dateFontSize() << '\n'
            << "colour = " << colour << '\n';
}

/// As the screens of the date do. Whether the store took it all; complains if it did not.
bool write(const Platform& platform, CustomDateTextView& date, const DateArguments& told) {
  bool taken = true;
  const GroupStore store(platform);
  if (told.font) {
    StoredFontPicker(platform, storedFont("DateFontPicker"), [] {
    }).didPickFont(FontDescriptor{*told.font, *told.font});
    taken = wasTaken(store, keys::dateFontPicked, *told.font);
  }
  if (told.size && taken) {
    date.setDateFontSize(*told.size);
    taken = wasTaken(store, keys::dateFontSize, *told.size);
  }
  if (told.colour && taken) {
    const PlatformColour colour = colourOf(*told.colour);
    date.setDateColour(colour);
    taken = wasTaken(store, keys::dateColour, colourComponents(colour));
  }
  return taken;
}

Exit run(const Platform& platform, const DateArguments& told) {
  if (const Status readable = GroupStore(platform).check(Suite::group); !readable) {
    complain(readable.failure());
    return Exit::failed;
  }
  CustomDateTextView date(platform);
  const bool writes = told.font || told.size || told.colour;
  if (writes && !write(platform, date, told)) return Exit::failed;
  if (!writes || told.json) print(CustomDateTextView(platform), told.json);
  return Exit::done;
}

} // namespace

void addDateCommand(CLI::App& program, CommandContext& context) {
  const auto told = std::make_shared<DateArguments>();
  CLI::App* command =
      program.add_subcommand("date", "Set up the plain date widget, or print how it is set up");
  command->add_option("--font", told->font, "A PostScript name")->type_name("NAME");
  command->add_option("--size", told->size, "Points")
      ->check(wholeNumber(CustomDateTextView::sizes.lowest, CustomDateTextView::sizes.highest))
      ->type_name("N");
  addColourOption(*command, told->colour);
  command->add_flag("--json", told->json, "Print how it is set up then as JSON");
  command->callback([told, &context] { context.exit = run(context.platform(), *told); });
}

} // namespace vitrelle::cli
