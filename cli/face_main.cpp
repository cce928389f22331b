// The command line's other program: the commands that draw, listen to the desktop or ask the
// network.

#include "cli/HostOptions.h"
#include "cli/Program.h"
#include "host/desktop/EndInTime.h"
#include "host/desktop/QtLoop.h"
#include "host/drawing/DrawingProcess.h"
#include "host/location/SystemLocation.h"
#include "host/music/SystemMusic.h"
#include "host/places/PlaceNames.h"
#include "host/power/SystemBattery.h"
#include "host/time/DateWords.h"
#include "host/weather/ForecastService.h"

#include <chrono>

int main(int argc, char** argv) {
  using namespace vitrelle;
  const host::DrawingProcess drawing;
  const host::EventLoop loop = host::makeQtLoop();
  return cli::runProgram(
      argc, argv,
      {.commands = {cli::addFaceCommand, cli::addMusicCommand, cli::addPlaceCommand,
                    cli::addSymbolsCommand, cli::addWeatherCommand},
       .makePlatform = [&](const cli::Options& options) -> Result<Platform> {
         Result<Platform> made = cli::hostPlatform(options, loop);
         if (!made) return made;
         Platform platform = *std::move(made);
         drawing.use(platform);
         host::useDateWords(platform);
         host::useBatteryAtOnce(platform, cli::hostOptions(options), loop);
         host::useGeocoder(platform, loop);
         host::useLocationAtOnce(platform, cli::hostOptions(options), loop);
         host::useWeatherService(platform, cli::hostOptions(options), loop);
         host::useMusicAtOnce(platform);
         return platform;
       },
       .runLoop = host::runQtLoop,
       .endLoop = host::endQtLoop,
       .handOver = {},
       .writeFile = {},
       .ending = [](int status) { host::endInTime(std::chrono::seconds(1), status); }});
}
