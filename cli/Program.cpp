#include "cli/Program.h"

#include "cli/OneLine.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <optional>
#include <string>

namespace vitrelle::cli {

namespace {

int complainOfUsage(const CLI::App& parser, const CLI::ParseError& error) {
  if (error.get_exit_code() == 0) return parser.exit(error); // a call for help
  // The parser misses a command before it looks at what stands in its place.
  const std::vector<std::string> unknown = parser.remaining();
  const bool noCommand = parser.get_subcommands().empty() && !unknown.empty();
  const std::string why = noCommand ? "there is no '" + unknown.front() + "'" : error.what();
  std::fprintf(stderr, "vitrelle: %s (see 'vitrelle --help')\n", oneLine(why).c_str());
  return static_cast<int>(Exit::usage);
}

/// What it prints may name files.
void showInLines(DebugConsole& console) {
  console.print = [print = console.print](const std::string& line) { print(oneLine(line)); };
}

int run(int argc, char** argv, const Program& program) {
  CLI::App parser("Cuts home-screen screenshots into the slices that widgets show.", "vitrelle");
  parser.require_subcommand(1);
  parser.set_version_flag("--version", VITRELLE_VERSION);
  Options options;
  addOptions(parser, options);

  std::optional<Platform> platform;
  const auto writeFile = [&](const std::string& path, const Data& bytes) {
    return program.writeFile(options, path, bytes);
  };
  CommandContext context{.options = options,
                         .platform = [&]() -> const Platform& {
                           if (!platform) {
                             readEnvironment(options);
                             Result<Platform> made = program.makePlatform(options);
                             if (!made) {
                               complain(made.failure());
                               throw CLI::RuntimeError(static_cast<int>(Exit::failed));
                             }
                             platform = *std::move(made);
                             showInLines(platform->debugConsole);
                           }
                           return *platform;
                         },
                         .runLoop = program.runLoop,
                         .endLoop = program.endLoop,
                         .handOver = program.handOver,
                         .writeFile = writeFile};
  for (const auto& add : program.commands)
    add(parser, context);
  for (CLI::App* command : parser.get_subcommands({})) {
    command->fallthrough();
    for (CLI::App* part : command->get_subcommands({}))
      part->fallthrough();
  }

  try {
    parser.parse(argc, argv);
  } catch (const CLI::RuntimeError& error) { // the command could not begin
    return error.get_exit_code();
  } catch (const CLI::ParseError& error) {
    return complainOfUsage(parser, error);
  }
  if (!std::cout.flush() || std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    complain({"standard output", "not all of it could be written"});
    return static_cast<int>(Exit::failed);
  }
  const int status = static_cast<int>(context.exit);
  if (program.ending) program.ending(status);
  return status;
}

} // namespace

int runProgram(int argc, char** argv, const Program& program) {
  try {
    return run(argc, argv, program);
  } catch (const std::exception& error) { // such as a lack of memory
    std::fprintf(stderr, "vitrelle: the program can't go on: %s\n", oneLine(error.what()).c_str());
    return static_cast<int>(Exit::failed);
  }
}

} // namespace vitrelle::cli
