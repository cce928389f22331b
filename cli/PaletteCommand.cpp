#include "cli/Command.h"
#include "cli/Numbers.h"

#include "core/colour/ColorThief.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace vitrelle::cli {
namespace {

struct PaletteOptions {
  std::string file;
  std::int64_t colours = 5;
  std::int64_t quality = 1;
  bool keepWhite = false;
  bool json = false;
};

std::string hexadecimal(const MMCQ::Color& colour) {
  char text[7];
  std::snprintf(text, sizeof text, "%02X%02X%02X", colour.r, colour.g, colour.b);
  return text;
}

/// Whether a person looks at the output who hasn't asked for plain text.
bool showsColours() {
  const char* noColour = std::getenv("NO_COLOR");
  return isatty(STDOUT_FILENO) == 1 && (noColour == nullptr || *noColour == '\0');
}

void printLines(const std::vector<MMCQ::Color>& palette) {
  const bool swatches = showsColours();
  for (const MMCQ::Color& colour : palette) {
    std::printf("%s", hexadecimal(colour).c_str());
    if (swatches) std::printf("  \x1b[48;2;%d;%d;%dm        \x1b[0m", colour.r, colour.g, colour.b);
    std::printf("\n");
  }
}

void printJson(const std::vector<MMCQ::Color>& palette) {
  const char* separator = "";
  std::printf("{\"colours\":[");
  for (const MMCQ::Color& colour : palette) {
    std::printf("%s\"%s\"", separator, hexadecimal(colour).c_str());
    separator = ",";
  }
  std::printf("]}\n");
}

Result<std::vector<MMCQ::Color>> paletteOf(const Images& images, const PaletteOptions& options) {
  const auto image = images.load(options.file);
  if (!image) return image.failure();
  if (const auto bitmap = image->bitmap(); !bitmap) return bitmap.failure();
  auto palette = ColorThief::palette(*image, options.colours, options.quality, !options.keepWhite);
  if (!palette) return Failure{options.file, "it has no pixels"};
  return *std::move(palette);
}

} // namespace

void addPaletteCommand(CLI::App& program, CommandContext& context) {
  const auto options = std::make_shared<PaletteOptions>();
  CLI::App* command = program.add_subcommand("palette", "Prints the dominant colours of a picture");
  command->add_option("FILE", options->file, "A PNG, JPEG or HEIC picture")->required();
  command
      ->add_option("--colours", options->colours,
                   "How many to look for; the palette may have one fewer, or one more than 2 or 3")
      ->check(wholeNumber(MMCQ::minimumColorCount, MMCQ::maximumColorCount))
      ->capture_default_str();
  command->add_option("--quality", options->quality, "Looks at every Nth pixel")
      ->check(wholeNumber(1, std::numeric_limits<std::int64_t>::max()))
      ->capture_default_str();
  command->add_flag("--keep-white", options->keepWhite, "Counts nearly white pixels too");
  command->add_flag("--json", options->json, "Prints one JSON document");
  command->callback([options, &context] {
    const auto palette = paletteOf(context.platform().images, *options);
    if (!palette) {
      complain(palette.failure());
      context.exit = Exit::failed;
      return;
    }
    options->json ? printJson(*palette) : printLines(*palette);
  });
}

} // namespace vitrelle::cli
