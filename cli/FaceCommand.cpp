#include "cli/ColourArgument.h"
#include "cli/Command.h"
#include "cli/Numbers.h"
#include "cli/OneLine.h"
#include "core/centre/CustomDateTextView.h"
#include "core/drawing/Describe.h"
#include "core/drawing/Shapes.h"
#include "core/drawing/View.h"
#include "core/families/Families.h"
#include "core/lifecycle/WidgetLook.h"
#include "core/slicing/ImageLoader.h"
#include "core/slicing/Measurements.h"
#include "core/store/GroupStore.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <functional>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>
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

/// Which record is drawn.
struct Chosen {
  const StyleFamily* family = nullptr;
  std::optional<std::int64_t> record = {};
  bool current = false;
  std::vector<std::string> fields = {}; ///< "textWidgetSize=40"
  std::string picture = {};             ///< a file, in the place of the record's own
};

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

std::string whyNoBackground(const std::string& text) {
  return text == "slice" ? "" : whyNoColour(text);
}

/// The layer behind the face, which may be a slice; an empty one for a transparent picture.
Result<DisplayList> background(const Platform& platform, const Sheet& sheet,
                               const std::optional<SliceName>& name, const PointSize& frame) {
  const PointRect box{0, 0, frame.width, frame.height};
  if (sheet.background.empty()) return DisplayList{};
  if (sheet.background != "slice") {
    return DisplayList{{DrawnPath{.path = shapes::rectangle(box),
                                  .colour = platformColour(Colour::parse(sheet.background))}}};
  }
  if (!name) {
    const std::string file =
        sliceFileName(styleInUse(platform), sheet.slot, platform.device.userInterfaceStyle());
    return Failure{file, "there is no such slice"};
  }
  const auto slice = ImageLoader(platform).loadSlice(name->stem, name->appearance, name->style);
  if (!slice) return Failure{sheet.slot, "the slice can't be read"};
  if (const auto bitmap = slice->bitmap(); !bitmap) return bitmap.failure();
  return DisplayList{{DrawnImage{.image = *slice, .box = box}}};
}

/// One by one, for the words and names in them are whatever they are.
void printLines(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);)
    std::cout << oneLine(line) << '\n';
}

/// What is drawn in a frame of the size, and the slice that it may stand on.
struct Drawn {
  std::function<DisplayList(const PointSize& frame)> face;
  std::optional<SliceName> slice;
};

Status draw(const Platform& platform, const Sheet& sheet, const Drawn& drawn) {
  const PointSize frame = sheet.frame.empty() ? slotSize(platform, *widgetLocation(sheet.slot))
                                              : *parseFrame(sheet.frame);
  const DisplayList face = drawn.face(frame);
  if (sheet.list) printLines(describe(face));
  if (sheet.file.empty()) return success();
  const auto behind = background(platform, sheet, drawn.slice, frame);
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

/// The stored record that is asked for, else a new one; with the fields that are told.
Result<StyleRecord> chosenRecord(const Platform& platform, const Chosen& chosen) {
  const FamilyStore& store = chosen.family->store();
  // Behind all that are stored: it has none of their pictures.
  StyleRecord record = store.newRecord(maximumWidgetStyles);
  if (chosen.record) {
    const auto stored = store.read(GroupStore(platform));
    if (!stored) return stored.failure();
    const RecordIndex index{*chosen.record};
    if (!index.isWithin(stored->size()))
      return Failure{store.records.name, "it has no record " + std::to_string(index.value)};
    record = (*stored)[static_cast<std::size_t>(index.value)];
  } else if (chosen.current) {
    const auto shown = shownRecord(platform, *chosen.family);
    if (!shown) return Failure{store.records.name, "it has no records"};
    record = *shown;
  }
  for (const std::string& field : chosen.fields) {
    const std::size_t equals = field.find('=');
    const Status set = setField(record, field.substr(0, equals), field.substr(equals + 1));
    if (!set) return set.failure();
  }
  return record;
}

/// The same with the picture that is told.
Result<StyleDraft> chosenDraft(const Platform& platform, const Chosen& chosen) {
  auto record = chosenRecord(platform, chosen);
  if (!record) return record.failure();
  StyleDraft draft{.record = *std::move(record)};
  if (chosen.picture.empty()) return draft;
  const auto picture = platform.images.load(chosen.picture);
  if (!picture) return picture.failure();
  if (const auto bitmap = picture->bitmap(); !bitmap) return bitmap.failure();
  draft.picture = *picture;
  return draft;
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

std::string whyNoField(const std::string& text) {
  return text.find('=') != std::string::npos ? "" : "'" + text + "' is no FIELD=VALUE";
}

std::string fieldsHelp(const FamilyStore& store) {
  std::string help = "A field of the record, by its stored name:";
  for (const std::string_view name : fieldNames(store.newRecord(0)))
    help += " " + std::string(name);
  return help;
}

/// Draws what `drawn` makes of the platform, in the program that can.
void addDrawing(CLI::App& command, const std::shared_ptr<Sheet>& sheet, CommandContext& context,
                std::function<Result<Drawn>(const Platform&)> drawn) {
  command.callback([sheet, &context, drawn = std::move(drawn)] {
    if (sheet->file.empty() && !sheet->list) throw CLI::RequiredError("FILE or --list");
    if (context.handOver) {
      context.handOver();
      context.exit = Exit::failed;
      return;
    }
    const Platform& platform = context.platform();
    const auto ready = drawn(platform);
    const Status done = ready ? draw(platform, *sheet, *ready) : Status(ready.failure());
    if (done) return;
    complain(done.failure());
    context.exit = Exit::failed;
  });
}

/// The platform without a way to change its stores.
Platform readingOnly(Platform platform) {
  platform.defaults.set = [](Suite, const std::string&, const StoreValue&) { return success(); };
  return platform;
}

/// A family that lives while it is drawn, whatever its life would store.
struct Alive {
  Alive(const Platform& whole, const StyleFamily& family)
      : platform(readingOnly(whole)), life(family.live(platform, [] {})) {}

  Platform platform;
  Subscription life;
};

void addFamilyFace(CLI::App& face, const StyleFamily& family, CommandContext& context) {
  const auto sheet = std::make_shared<Sheet>();
  const auto chosen = std::make_shared<Chosen>(Chosen{.family = &family});
  CLI::App* command =
      face.add_subcommand(std::string(family.words().name), std::string(family.words().entryTitle));
  addSheetOptions(*command, *sheet);
  CLI::Option* record =
      command->add_option("--record", chosen->record, "The widget style of this index, from 0")
          ->check(wholeNumber(0, std::numeric_limits<std::int64_t>::max()));
  command->add_flag("--current", chosen->current, "The widget style that widgets show now")
      ->excludes(record);
  command->add_option("--set", chosen->fields, fieldsHelp(family.store()))
      ->check(CLI::Validator(whyNoField, "FIELD=VALUE"))
      ->take_all()
      ->allow_extra_args(false);
  if (family.takesPictures(EditorStep::setup)) {
    command->add_option("--picture", chosen->picture,
                        "A picture file to be tried in the place of the stored one");
  }
  addDrawing(*command, sheet, context,
             [sheet, chosen, &family](const Platform& platform) -> Result<Drawn> {
               const auto draft = chosenDraft(platform, *chosen);
               if (!draft) return draft.failure();
               const auto alive = std::make_shared<Alive>(platform, family);
               return Drawn{
                   .face =
                       [&platform, &family, draft = *draft, alive](const PointSize& frame) {
                         return widgetFace(platform, family, draft, frame);
                       },
                   .slice = widgetBackdrop(platform, draft->record, *widgetLocation(sheet->slot))};
             });
}

void addDateFace(CLI::App& face, CommandContext& context) {
  const auto sheet = std::make_shared<Sheet>();
  CLI::App* command = face.add_subcommand("date", "The plain date, as 'vitrelle date' sets it");
  addSheetOptions(*command, *sheet);
  addDrawing(*command, sheet, context, [sheet](const Platform& platform) -> Result<Drawn> {
    return Drawn{.face =
                     [&platform](const PointSize& frame) {
                       return CustomDateTextView(platform).face(frame);
                     },
                 .slice = currentSlice(platform, *widgetLocation(sheet->slot))};
  });
}

} // namespace

void addFaceCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command = program.add_subcommand("face", "Draw a widget's face to a PNG file");
  command->require_subcommand(1);
  for (const FamilyDescription& words : familyTable)
    addFamilyFace(*command, styleFamily(words.name), context);
  addDateFace(*command, context);
}

} // namespace vitrelle::cli
