// The command line: puts the platform together and runs one command over it. It loads no Qt,
// since starting counts; commands that draw or listen to the desktop run in the program beside it.

#include "cli/HostOptions.h"
#include "cli/Program.h"
#include "host/desktop/PollLoop.h"
#include "host/files/PendingFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

namespace {

using namespace vitrelle;

/// Becomes that other program, with the same arguments. Returns only when that is not there.
void becomeOtherProgram(char** argv) {
  std::error_code none;
  const auto own = std::filesystem::read_symlink("/proc/self/exe", none);
  const std::string other = own.parent_path() / "vitrelle-face";
  execv(other.c_str(), argv);
  cli::complain({other, std::strerror(errno)});
}

} // namespace

int main(int argc, char** argv) {
  // The loop outlives the platform, which may still watch something when it goes.
  host::PollLoop loop;
  return cli::runProgram(
      argc, argv,
      {.commands = {cli::addCutCommand, cli::addPaletteCommand, cli::addPhonesCommand,
                    cli::addPhoneCommand, cli::addDefaultsCommand, cli::addImageCommand,
                    cli::addRecordsCommand, cli::addStyleCommand, cli::addShortcutCommand,
                    cli::addFaceCommand, cli::addSymbolsCommand, cli::addDateCommand,
                    cli::addBackgroundCommand, cli::addMusicCommand, cli::addPlaceCommand,
                    cli::addWeatherCommand, cli::addOpenCommand, cli::addExportCommand},
       .makePlatform =
           [&](const cli::Options& options) {
             return cli::hostPlatform(options, loop.operations());
           },
       .runLoop = [&] { loop.run(); },
       .endLoop = [&] { loop.stop(); },
       .handOver = [argv] { becomeOtherProgram(argv); },
       .writeFile =
           [](const cli::Options& options, const std::string& path, const Data& bytes) {
             return host::replaceFile(cli::hostOptions(options).home, path, bytes);
           },
       .ending = {}});
}
