#include "cli/Command.h"
#include "cli/OneLine.h"

#include "core/families/music/Song.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>
#include <string>

namespace vitrelle::cli {

namespace {

struct MusicArguments {
  bool json = false;
  bool watch = false;
};

std::string json(const Song& song) {
  using Json = nlohmann::ordered_json;
  Json artwork; // null
  if (song.artwork) {
    const PixelSize size = song.artwork->size();
    artwork = {{"width", size.width}, {"height", size.height}};
  }
  const Json document = {{"playingState", song.playingState},
                         {"title", song.title},
                         {"albumTitle", song.albumTitle},
                         {"artist", song.artist},
                         {"artwork", artwork}};
  return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string lines(const Song& song) {
  std::string artwork = "none";
  if (song.artwork) {
    const PixelSize size = song.artwork->size();
    artwork = std::to_string(size.width) + "x" + std::to_string(size.height);
  }
  return "playingState = " + std::to_string(song.playingState) +
         "\ntitle = " + oneLine(song.title) + "\nalbumTitle = " + oneLine(song.albumTitle) +
         "\nartist = " + oneLine(song.artist) + "\nartwork = " + artwork;
}

void run(const CommandContext& context, const MusicArguments& arguments) {
  const Platform& platform = context.platform();
  const auto words = arguments.json ? json : lines;
  Song song(platform);
  std::string last = words(song);
  std::cout << last << std::endl;
  if (!arguments.watch) return;
  const Subscription observation = song.objectWillChange.add([&] {
    const std::string now = words(song);
    if (now == last) return; // players tell of more than is shown
    last = now;
    std::cout << (arguments.json ? "" : "\n") << now << std::endl;
  });
  const Subscription changes = follow(platform, song);
  context.runLoop();
}

} // namespace

void addMusicCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command = program.add_subcommand("music", "What the desktop's music player plays");
  const auto arguments = std::make_shared<MusicArguments>();
  command->add_flag("--json", arguments->json, "One JSON document; a line for each change");
  command->add_flag("--watch", arguments->watch, "Print each change too, until interrupted");
  command->callback([&context, arguments] {
    if (context.handOver) {
      context.handOver();
      context.exit = Exit::failed;
      return;
    }
    run(context, *arguments);
  });
}

} // namespace vitrelle::cli
