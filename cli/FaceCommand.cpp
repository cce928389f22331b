#include "cli/Command.h"

#include "cli/Numbers.h"
#include "cli/OneLine.h"
#include "core/drawing/Describe.h"
#include "core/drawing/Shapes.h"
#include "core/drawing/View.h"
#include "core/faces/CustomTextPreviewView.h"
#include "core/slicing/ImageLoader.h"
#include "core/slicing/Measurements.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

namespace vitrelle::cli {
namespace {

/// What all faces are drawn with.
struct Sheet {
  std::string file;
  std::string frame; ///< "158x158" in points; the slot's when it is empty
  std::string slot = "topLeftSmall";
  std::string background;   ///< "RRGGBB", or "slice"
  std::optional<int> scale; ///< the phone's when it is not told
  bool list = false;
};

struct TextArguments {
  Sheet sheet;
  std::optional<std::int64_t> record;
  std::string text;
  std::string font;
  std::int64_t size = 18;
  bool noShadow = false;
  std::string colour = "FFFFFF";
};

PlatformColour platformColour(const Colour& colour) {
  return {colour.red, colour.green, colour.blue, colour.alpha};
}

/// The pixels of a screenshot in one point, which slots are measured in. A zoomed display has more
/// than its scale says.
double phoneScale(const Platform& platform) {
  return platform.device.screenNativeScale();
}

/// The slot's, on the screen of the phone; what a gallery shows where there are no measurements.
PointSize slotSize(const Platform& platform, WidgetLocationImageNames slot) {
  const WidgetMeasurements measured = Measurements::current(platform);
  if (measured.widgetSize == 0) {
    const double side = std::floor(platform.device.screenBounds().width / 2.5);
    return {side, side};
  }
  const PixelRect pixels = slotRectangle(slot, measured);
  const double scale = phoneScale(platform);
  return {static_cast<double>(pixels.width) / scale, static_cast<double>(pixels.height) / scale};
}

/// "158x158", "98.25x40".
std::optional<PointSize> parseFrame(const std::string& text) {
  constexpr double largest = 9999;
  const std::size_t times = text.find('x');
  if (times == std::string::npos) return std::nullopt;
  const auto number = [&](std::size_t from, std::size_t to) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data() + from, text.data() + to, value);
    const bool whole = error == std::errc() && end == text.data() + to;
    return whole && value > 0 && value <= largest ? value : 0;
  };
  const PointSize size{number(0, times), number(times + 1, text.size())};
  if (size.width == 0 || size.height == 0) return std::nullopt;
  return size;
}

std::string whyNoFrame(const std::string& text) {
  return parseFrame(text) ? "" : "'" + text + "' is no size in points, such as 158x158";
}

std::string whyNoSlot(const std::string& text) {
  const auto slot = widgetLocation(text);
  const bool isSlot = slot && *slot != WidgetLocationImageNames::fullImage &&
                      *slot != WidgetLocationImageNames::error;
  return isSlot ? "" : "'" + text + "' is no slot, such as topLeftSmall or topMedium";
}

bool isColour(const std::string& text) {
  const std::string digits = text.substr(text.starts_with('#') ? 1 : 0);
  return (digits.size() == 6 || digits.size() == 8) &&
         digits.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

std::string whyNoColour(const std::string& text) {
  return isColour(text) ? "" : "'" + text + "' is no colour, such as FF8000";
}

std::string whyNoBackground(const std::string& text) {
  return text == "slice" ? "" : whyNoColour(text);
}

/// The layer behind the face; an empty one for a transparent picture.
Result<DisplayList> background(const Platform& platform, const Sheet& sheet,
                               const PointSize& frame) {
  const PointRect box{0, 0, frame.width, frame.height};
  if (sheet.background.empty()) return DisplayList{};
  if (sheet.background != "slice") {
    return DisplayList{{DrawnPath{.path = shapes::rectangle(box),
                                  .colour = platformColour(Colour::parse(sheet.background))}}};
  }
  const std::int64_t config = GroupStore(platform).valueOrDefault(keys::selectedConfig);
  const InterfaceStyle style = platform.device.userInterfaceStyle();
  const auto slice = ImageLoader(platform).loadSlice(sheet.slot, style, config);
  if (!slice) {
    return Failure{sliceFileName(config, sheet.slot, style), "there is no such slice"};
  }
  if (const auto bitmap = slice->bitmap(); !bitmap) return bitmap.failure();
  return DisplayList{{DrawnImage{.image = *slice, .box = box}}};
}

/// One by one, for the words and names in them are whatever they are.
void printLines(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);)
    std::cout << oneLine(line) << '\n';
}

Status draw(const Platform& platform, const Sheet& sheet, const View& view) {
  const PointSize frame = sheet.frame.empty() ? slotSize(platform, *widgetLocation(sheet.slot))
                                              : *parseFrame(sheet.frame);
  const DisplayList face = layOut(view, frame, platform.drawing);
  if (sheet.list) printLines(describe(face));
  if (sheet.file.empty()) return success();
  const auto behind = background(platform, sheet, frame);
  if (!behind) return behind.failure();
  const std::array layers{*behind, face};
  const double scale = sheet.scale ? *sheet.scale : phoneScale(platform);
  const auto picture = platform.drawing.render(layers, {0, 0, frame.width, frame.height}, scale);
  if (!picture) return picture.failure();
  const PngFile file{sheet.file, *picture};
  const auto written = platform.images.writePngFiles({&file, 1});
  if (!written.front()) return written.front().failure();
  return success();
}

/// The text that is told, or that of a stored record.
Result<CustomTextPreviewView> textFace(const Platform& platform, const TextArguments& told) {
  if (!told.record) {
    return CustomTextPreviewView{.text = told.text,
                                 .colour = platformColour(Colour::parse(told.colour)),
                                 .fontName = told.font,
                                 .textSize = told.size,
                                 .showShadow = !told.noShadow};
  }
  const auto records = GroupStore(platform).loadRecords(families::text);
  if (*told.record < 0 || static_cast<std::size_t>(*told.record) >= records.size()) {
    return Failure{families::text.records.name, "it has no record " + std::to_string(*told.record)};
  }
  const textWidgetData& record = records[static_cast<std::size_t>(*told.record)];
  return CustomTextPreviewView{.text = record.textWidgetText,
                               .colour = platformColour(record.textWidgetTextColour),
                               .fontName = record.textWidgetFont,
                               .textSize = record.textWidgetSize,
                               .showShadow = record.textWidgetShadow};
}

void addSheetOptions(CLI::App& command, Sheet& sheet) {
  command.add_option("FILE", sheet.file, "The PNG file to write; may be left out with --list");
  command.add_option("--slot", sheet.slot, "The slot whose size the picture has")
      ->check(CLI::Validator(whyNoSlot, "SLOT"))
      ->capture_default_str();
  command.add_option("--frame", sheet.frame, "Another size, in points")
      ->check(CLI::Validator(whyNoFrame, "WIDTHxHEIGHT"));
  command.add_option("--scale", sheet.scale, "Pixels per point; the phone's when it is not told")
      ->check(wholeNumber(1, 3));
  command
      .add_option("--background", sheet.background,
                  "What is behind: a colour, or 'slice' for the slot's of the style in use")
      ->check(CLI::Validator(whyNoBackground, "RRGGBB|slice"));
  command.add_flag("--list", sheet.list, "Print what is drawn, one item a line");
}

void addTextFace(CLI::App& face, CommandContext& context) {
  const auto told = std::make_shared<TextArguments>();
  CLI::App* command = face.add_subcommand("text", "A few words");
  addSheetOptions(*command, told->sheet);
  CLI::Option* record =
      command->add_option("--record", told->record, "The widget style of this index, from 0")
          ->check(wholeNumber(0, std::numeric_limits<std::int64_t>::max()));
  const auto own = [record](CLI::Option* option) { return option->excludes(record); };
  own(command->add_option("--text", told->text, "The words"));
  own(command->add_option("--font", told->font, "A PostScript name"));
  own(command->add_option("--size", told->size, "Points")->capture_default_str())
      ->check(wholeNumber(1, 1000));
  own(command->add_option("--colour", told->colour)->capture_default_str())
      ->check(CLI::Validator(whyNoColour, "RRGGBB"));
  own(command->add_flag("--no-shadow", told->noShadow));
  command->callback([told, &context] {
    if (told->sheet.file.empty() && !told->sheet.list) throw CLI::RequiredError("FILE or --list");
    if (context.handOver) {
      context.handOver();
      context.exit = Exit::failed;
      return;
    }
    const Platform& platform = context.platform();
    const auto words = textFace(platform, *told);
    const Status drawn =
        words ? draw(platform, told->sheet, words->view()) : Status(words.failure());
    if (drawn) return;
    complain(drawn.failure());
    context.exit = Exit::failed;
  });
}

} // namespace

void addFaceCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command = program.add_subcommand("face", "Draw a widget's face to a PNG file");
  command->require_subcommand(1);
  addTextFace(*command, context);
}

} // namespace vitrelle::cli
