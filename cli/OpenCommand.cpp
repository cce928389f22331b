#include "cli/Command.h"

#include <cstdio>
#include <memory>
#include <string>

namespace vitrelle::cli {

void addOpenCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command =
      program.add_subcommand("open", "Hand a link to the running application and bring it up");
  const auto url = std::make_shared<std::string>();
  command->add_option("URL", *url, "Such as vitrelle://support/widget-label")->required();
  command->callback([&context, url] {
    const Result<bool> sent = context.platform().links.send(*url);
    if (!sent || !*sent) {
      complain(sent ? Failure{*url, "the application does not run over this home"}
                    : sent.failure());
      context.exit = Exit::failed;
    }
  });
}

} // namespace vitrelle::cli
