#include "cli/Command.h"
#include "cli/Numbers.h"
#include "cli/SymbolSheet.h"

#include "core/pickers/SymbolCatalogue.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle::cli {

namespace {

struct SymbolsArguments {
  std::string category; ///< a label, in any case; all of them when it is empty
  std::string sheet;
  int scale = 1;
  bool ownColours = false;
  bool json = false;
};

struct Listed {
  std::string_view category;
  std::string_view name;
};

/// The labels in the order of the categories, without that of `none`.
std::vector<std::string> labels() {
  std::vector<std::string> all;
  for (const Category category : allCategories())
    if (category != Category::none) all.emplace_back(label(category));
  return all;
}

std::vector<Listed> symbolsOf(const std::string& wanted) {
  std::vector<Listed> found;
  for (const std::string& category : labels()) {
    if (!wanted.empty() && wanted != category) continue;
    const auto list = symbolCatalogue().find(category);
    for (const std::string_view name : list->second)
      found.push_back({list->first, name});
  }
  return found;
}

/// Where the picture comes from. One that is another's has nothing of its own either.
const char* from(SymbolMatch match) {
  switch (match) {
  case SymbolMatch::alias:
    return "icon";
  case SymbolMatch::composition:
    return "composition";
  case SymbolMatch::drawing:
    return "drawing";
  default:
    return "lettered square";
  }
}

void print(const Platform& platform, const std::vector<Listed>& symbols, bool json) {
  auto list = nlohmann::ordered_json::array();
  for (const auto& [category, name] : symbols) {
    const char* source = from(platform.symbols.match(std::string(name)));
    if (json) {
      list.push_back({{"category", category}, {"name", name}, {"from", source}});
    } else {
      std::cout << category << '\t' << name << '\t' << source << '\n';
    }
  }
  if (json) std::cout << nlohmann::ordered_json{{"symbols", std::move(list)}}.dump(2) << '\n';
}

Exit run(const Platform& platform, const SymbolsArguments& arguments) {
  const std::vector<Listed> symbols = symbolsOf(arguments.category);
  if (arguments.sheet.empty() || arguments.json) print(platform, symbols, arguments.json);
  if (arguments.sheet.empty()) return Exit::done;
  std::vector<std::string_view> names;
  names.reserve(symbols.size());
  for (const Listed& symbol : symbols)
    names.push_back(symbol.name);
  const Status drawn =
      drawSymbolSheet(platform, names, arguments.ownColours, arguments.scale, arguments.sheet);
  if (drawn) return Exit::done;
  complain(drawn.failure());
  return Exit::failed;
}

} // namespace

void addSymbolsCommand(CLI::App& program, CommandContext& context) {
  const auto told = std::make_shared<SymbolsArguments>();
  CLI::App* command = program.add_subcommand(
      "symbols", "List the symbols that can be picked, and where their pictures come from");
  command->add_option("CATEGORY", told->category, "One list of them; all when it is not told")
      ->transform(CLI::IsMember(labels(), CLI::ignore_case));
  command->add_flag("--json", told->json, "The list as JSON");
  CLI::Option* sheet =
      command->add_option("--sheet", told->sheet, "Draw them all to this PNG file instead");
  command->add_flag("--own-colours", told->ownColours, "Draw each in the colours it has")
      ->needs(sheet);
  command->add_option("--scale", told->scale, "The sheet's pixels per point")
      ->check(wholeNumber(1, 3))
      ->needs(sheet)
      ->capture_default_str();
  command->callback([told, &context] {
    if (!told->sheet.empty() && context.handOver) {
      context.handOver();
      context.exit = Exit::failed;
      return;
    }
    context.exit = run(context.platform(), *told);
  });
}

} // namespace vitrelle::cli
