#include "cli/Command.h"
#include "core/slicing/DeviceNames.h"
#include "core/slicing/Measurements.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>
#include <string>

namespace vitrelle::cli {

namespace {

struct PhoneArguments {
  std::string name;
  bool json = false;
};

void show(const Platform& platform, const PhoneChoice& phone, bool json) {
  const std::string name = modelName(phone.identifier, platform.device);
  const MeasurementSituation situation{
      .deviceName = name, .os18 = phone.os >= OsVersion{18, 0, 0}, .zoomed = phone.zoomed};
  const auto table = Measurements::dictionary(Measurements::tableFor(situation));
  const bool measured = table.contains(name);
  if (json) {
    const nlohmann::ordered_json document = {{"phone", name},
                                             {"identifier", phone.identifier},
                                             {"os", describe(phone.os)},
                                             {"zoomed", phone.zoomed},
                                             {"appearance", describe(phone.appearance)},
                                             {"measured", measured}};
    std::printf("%s\n", document.dump(2).c_str());
    return;
  }
  const std::string appearance = phone.appearance == AppearanceChoice::desktop
                                     ? ""
                                     : ", always " + std::string(describe(phone.appearance));
  std::printf("%s (%s), OS %s, %s display%s%s\n", name.c_str(), phone.identifier.c_str(),
              describe(phone.os).c_str(), phone.zoomed ? "zoomed" : "standard", appearance.c_str(),
              measured ? "" : ", no measurements");
}

Exit run(const CommandContext& context, const PhoneArguments& arguments) {
  const Platform& platform = context.platform();
  PhoneChoice phone = platform.phoneBook.current();
  if (!arguments.name.empty()) {
    const auto identifier = phoneIdentifier(arguments.name);
    if (!identifier) {
      throw CLI::ValidationError("phone", "there is no phone '" + arguments.name +
                                              "'; 'vitrelle phones' lists them");
    }
    phone.identifier = *identifier;
  }
  if (!arguments.name.empty() || context.options.phoneTold) {
    const Status saved = platform.phoneBook.save(phone);
    if (!saved) {
      complain(saved.failure());
      return Exit::failed;
    }
  }
  show(platform, phone, arguments.json);
  return Exit::done;
}

} // namespace

void addPhoneCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command = program.add_subcommand(
      "phone",
      "Show the phone that is stood for, or save another with its --os, --zoomed and --appearance");
  const auto arguments = std::make_shared<PhoneArguments>();
  command->add_option("name", arguments->name, "Name or machine identifier")->type_name("NAME");
  command->add_flag("--json", arguments->json, "One JSON document");
  command->callback([&context, arguments] { context.exit = run(context, *arguments); });
}

} // namespace vitrelle::cli
