// What the programs of the command line have in common: parsing, running one command, exit
// statuses.
#pragma once

#include "cli/Command.h"

#include <functional>
#include <vector>

namespace vitrelle::cli {

struct Program {
  std::vector<void (*)(CLI::App&, CommandContext&)> commands;
  std::function<Result<Platform>(const Options&)> makePlatform;
  std::function<void()> runLoop;
  std::function<void()> endLoop;
  // See `CommandContext`.
  std::function<void()> handOver;
  std::function<Status(const Options&, const std::string& path, const Data& bytes)> writeFile;
  /// Called at the end, when everything is written, with the exit status; may be empty.
  std::function<void(int)> ending;
};

/// The exit status.
int runProgram(int argc, char** argv, const Program& program);

} // namespace vitrelle::cli
