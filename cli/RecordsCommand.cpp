#include "cli/Command.h"
#include "cli/OneLine.h"

#include "core/store/GroupStore.h"
#include "core/store/RecordCoding.h"
#include "core/store/RecordFields.h"

#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace vitrelle::cli {

namespace {

struct RecordsArguments {
  std::string family;
  bool json = false;
};

std::string shown(std::int64_t number) {
  return std::to_string(number);
}
std::string shown(bool flag) {
  return flag ? "true" : "false";
}
std::string shown(const std::string& text) {
  return quotedLine(text);
}
std::string shown(const Colour& colour) {
  return colour.hex(false).value_or("none");
}

template <class Record>
void print(const std::vector<Record>& records) {
  if (records.empty()) std::cout << "[]\n";
  for (std::size_t i = 0; i < records.size(); ++i) {
    std::cout << '[' << i << "]\n";
    forEachField<Record>([&](const auto& field) {
      std::cout << field.name << " = " << shown(records[i].*field.member) << '\n';
    });
  }
}

template <class Record>
Exit run(const Platform& platform, const Family<Record>& family, bool json) {
  const auto read = GroupStore(platform).readRecords(family);
  const auto stored = platform.defaults.value(Suite::group, family.records.name);
  if (!read || !stored) {
    complain(read ? stored.failure() : read.failure());
    return Exit::failed;
  }
  const std::vector<Record>& records = *read;
  const auto* bytes = *stored ? std::get_if<Data>(&**stored) : nullptr;
  if (*stored && !(bytes && decodeRecords<Record>(*bytes))) {
    complain({family.records.name, "it is damaged and reads as empty"});
  }
  if (!json) {
    print(records);
    return Exit::done;
  }
  const Result<Data> text = encodeRecords(records);
  if (!text) {
    complain(text.failure());
    return Exit::failed;
  }
  std::cout << std::string(text->begin(), text->end()) << '\n';
  return Exit::done;
}

} // namespace

void addRecordsCommand(CLI::App& program, CommandContext& context) {
  const auto options = std::make_shared<RecordsArguments>();
  CLI::App* command =
      program.add_subcommand("records", "Print the widget styles of a family as they are stored");
  std::vector<std::string> names;
  forEachFamily([&](const auto& family) { names.emplace_back(family.name); });
  command->fallthrough();
  command->add_option("FAMILY", options->family)->required()->check(CLI::IsMember(names));
  command->add_flag("--json", options->json, "The array as JSON");
  command->callback([options, &context] {
    forEachFamily([&](const auto& family) {
      if (options->family != family.name) return;
      context.exit = run(context.platform(), family, options->json);
    });
  });
}

} // namespace vitrelle::cli
