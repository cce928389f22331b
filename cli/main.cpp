// The command line: puts the platform together and runs one command over it.

#include "cli/Command.h"
#include "cli/Options.h"
#include "host/Host.h"
#include "host/desktop/PollLoop.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace vitrelle;
using namespace vitrelle::cli;

host::HostOptions hostOptions(const Options& options) {
  return {
      .home = options.home ? host::HomeFolder(*options.home) : host::HomeFolder::ofUser(),
      .phone = {.identifier = options.phoneIdentifier, .os = options.os, .zoomed = options.zoomed},
      .verbose = options.verbose};
}

int complainOfUsage(const CLI::App& program, const CLI::ParseError& error) {
  if (error.get_exit_code() == 0) return program.exit(error); // a call for help
  // The parser misses a command before it looks at what stands in its place.
  const std::vector<std::string> unknown = program.remaining();
  const bool noCommand = program.get_subcommands().empty() && !unknown.empty();
  const std::string why = noCommand ? "there is no '" + unknown.front() + "'" : error.what();
  std::fprintf(stderr, "vitrelle: %s (see 'vitrelle --help')\n", why.c_str());
  return static_cast<int>(Exit::usage);
}

int run(int argc, char** argv) {
  CLI::App program("Cuts home-screen screenshots into the slices that widgets show.", "vitrelle");
  program.require_subcommand(1);
  program.set_version_flag("--version", VITRELLE_VERSION);
  Options options;
  addOptions(program, options);

  // The loop outlives the platform, which may still watch something when it goes.
  host::PollLoop loop;
  std::optional<Platform> platform;
  CommandContext context{.options = options,
                         .platform = [&]() -> const Platform& {
                           if (!platform) {
                             readEnvironment(options);
                             platform = makePlatform(hostOptions(options), loop.operations());
                           }
                           return *platform;
                         },
                         .runLoop = [&] { loop.run(); }};
  addCutCommand(program, context);
  addPaletteCommand(program, context);
  addPhonesCommand(program, context);
  addPhoneCommand(program, context);
  addDefaultsCommand(program, context);
  addRecordsCommand(program, context);
  addStyleCommand(program, context);
  addShortcutCommand(program, context);
  addOpenCommand(program, context);
  for (CLI::App* command : program.get_subcommands({})) {
    command->fallthrough();
    for (CLI::App* part : command->get_subcommands({}))
      part->fallthrough();
  }

  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return complainOfUsage(program, error);
  }
  if (!std::cout.flush() || std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    complain({"standard output", "not all of it could be written"});
    return static_cast<int>(Exit::failed);
  }
  return static_cast<int>(context.exit);
}

} // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) { // such as a lack of memory
    std::fprintf(stderr, "vitrelle: the program can't go on: %s\n", error.what());
    return static_cast<int>(Exit::failed);
  }
}
