#include "cli/Command.h"
#include "core/slicing/MeasurementTables.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>

namespace vitrelle::cli {

namespace {

bool isMeasured(const std::string& name, MeasurementTable table) {
  return findMeasurements(name, table) != nullptr;
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words)
    text += (text.empty() ? "" : " ") + word;
  return text;
}

const char* mark(bool yes) {
  return yes ? "yes" : "-";
}

void printTable(const std::vector<PhoneModel>& phones) {
  std::printf("%-27s %-22s %-11s %-4s  %-9s  %s\n", "phone", "identifiers", "screenshot", "18+",
              "before 18", "zoomed");
  for (const PhoneModel& phone : phones) {
    const ScreenMode& screen = phone.standard;
    const std::string pixels = std::to_string(std::lround(screen.bounds.width * screen.scale)) +
                               "x" +
                               std::to_string(std::lround(screen.bounds.height * screen.scale));
    std::printf("%-27s %-22s %-11s %-4s  %-9s  %s\n", phone.name.c_str(),
                joined(phone.identifiers).c_str(), pixels.c_str(),
                mark(isMeasured(phone.name, MeasurementTable::iOS18)),
                mark(isMeasured(phone.name, MeasurementTable::classic)),
                mark(isMeasured(phone.name, MeasurementTable::zoomed)));
  }
}

nlohmann::ordered_json describe(const ScreenMode& screen) {
  return {{"width", std::lround(screen.bounds.width * screen.scale)},
          {"height", std::lround(screen.bounds.height * screen.scale)}};
}

void printJson(const std::vector<PhoneModel>& phones) {
  auto list = nlohmann::ordered_json::array();
  for (const PhoneModel& phone : phones) {
    list.push_back({{"name", phone.name},
                    {"identifiers", phone.identifiers},
                    {"screenshot", describe(phone.standard)},
                    {"zoomedScreenshot", describe(phone.zoomed)},
                    {"measured",
                     {{"ios18", isMeasured(phone.name, MeasurementTable::iOS18)},
                      {"classic", isMeasured(phone.name, MeasurementTable::classic)},
                      {"zoomed", isMeasured(phone.name, MeasurementTable::zoomed)}}}});
  }
  std::printf("%s\n", list.dump(2).c_str());
}

} // namespace

void addPhonesCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command =
      program.add_subcommand("phones", "List the phones, and where each has measurements");
  const auto json = std::make_shared<bool>(false);
  command->add_flag("--json", *json, "One JSON array");
  command->callback([&context, json] {
    const std::vector<PhoneModel> phones = context.platform().phoneBook.models();
    *json ? printJson(phones) : printTable(phones);
  });
}

} // namespace vitrelle::cli
