// What the commands share: their surroundings, their exit statuses and the way they complain.
#pragma once

#include "cli/Options.h"
#include "core/platform/Platform.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

namespace vitrelle::cli {

/// The exit statuses that scripts may rely on.
enum class Exit : int {
  done = 0,
  failed = 1,
  usage = 2,
  unmeasuredPhone = 3,
};

/// The surroundings of the one command that runs. main.cpp fills it in; a command's callback reads
/// it after all options are parsed and leaves its exit status in it.
struct CommandContext {
  const Options& options;
  /// Made at the first call, from the options and the environment.
  std::function<const Platform&()> platform;
  /// Delivers what the platform watches and answers; returns when the user interrupts the program,
  /// or something that is delivered calls `endLoop`.
  std::function<void()> runLoop;
  std::function<void()> endLoop;
  /// Set where commands that need Qt, ICU or the network belong to another program: becomes that
  /// one, with the same arguments, and returns only when it can't.
  std::function<void()> handOver;
  /// Puts a file of these bytes into place, whole, replacing what was there, and makes its folder.
  std::function<Status(const std::string& path, const Data& bytes)> writeFile;
  Exit exit = Exit::done;
};

/// The name of the phone that is stood for.
std::string phoneName(const Platform& platform);

/// Keeps other programs from changing styles meanwhile. Waits for one that does; null, with a
/// complaint, when that takes too long or the home can't be written.
HomeLock lockHome(const Platform& platform);

/// "vitrelle: what: why" on stderr, in one line whatever the two hold.
void complain(const Failure& failure);

// One for each command, in a file of its own. Each adds its subcommand, whose callback runs it.
void addBackgroundCommand(CLI::App& program, CommandContext& context);
void addCutCommand(CLI::App& program, CommandContext& context);
void addDateCommand(CLI::App& program, CommandContext& context);
void addDefaultsCommand(CLI::App& program, CommandContext& context);
void addExportCommand(CLI::App& program, CommandContext& context);
void addFaceCommand(CLI::App& program, CommandContext& context);
void addImageCommand(CLI::App& program, CommandContext& context);
void addMusicCommand(CLI::App& program, CommandContext& context);
void addOpenCommand(CLI::App& program, CommandContext& context);
void addPaletteCommand(CLI::App& program, CommandContext& context);
void addPhoneCommand(CLI::App& program, CommandContext& context);
void addPhonesCommand(CLI::App& program, CommandContext& context);
void addPlaceCommand(CLI::App& program, CommandContext& context);
void addRecordsCommand(CLI::App& program, CommandContext& context);
void addShortcutCommand(CLI::App& program, CommandContext& context);
void addStyleCommand(CLI::App& program, CommandContext& context);
void addSymbolsCommand(CLI::App& program, CommandContext& context);
void addWeatherCommand(CLI::App& program, CommandContext& context);

} // namespace vitrelle::cli
