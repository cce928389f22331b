// The command line's other program: the commands that draw or name places.

#include "cli/HostOptions.h"
#include "cli/Program.h"
#include "host/desktop/PollLoop.h"
#include "host/drawing/DrawingProcess.h"
#include "host/places/PlaceNames.h"
#include "host/power/SystemBattery.h"
#include "host/time/DateWords.h"

int main(int argc, char** argv) {
  using namespace vitrelle;
  host::PollLoop loop;
  const host::DrawingProcess drawing;
  return cli::runProgram(
      argc, argv,
      {.commands = {cli::addFaceCommand, cli::addSymbolsCommand, cli::addPlaceCommand},
       .makePlatform = [&](const cli::Options& options) -> Result<Platform> {
         Result<Platform> made = cli::hostPlatform(options, loop.operations());
         if (!made) return made;
         Platform platform = *std::move(made);
         drawing.use(platform);
         host::useDateWords(platform);
         host::useBattery(platform, cli::hostOptions(options), loop.operations());
         host::useGeocoder(platform, loop.operations());
         return platform;
       },
       .runLoop = [&] { loop.run(); },
       .endLoop = [&] { loop.stop(); },
       .handOver = {}});
}
