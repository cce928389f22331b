#include "cli/Command.h"
#include "cli/StoredWrite.h"
#include "core/families/Families.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/slicing/ImageOverlay.h"
#include "core/store/GroupStore.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>
#include <string>
#include <utility>

namespace vitrelle::cli {

namespace {

struct ImageArguments {
  std::string file;
  std::string size = "small";
  std::string position = "centre";
  bool noShadow = false;
  bool json = false;
};

Exit fail(const Failure& failure) {
  complain(failure);
  return Exit::failed;
}

void print(const imageWidgetData& style, const std::string& file, const PixelSize& size,
           const ImageArguments& arguments) {
  if (arguments.json) {
    const nlohmann::ordered_json document = {{"index", style.imageConfigTag},
                                             {"file", file},
                                             {"width", size.width},
                                             {"height", size.height},
                                             {"size", arguments.size},
                                             {"position", style.imagePosition},
                                             {"shadow", style.imageShowShadow}};
    std::printf("%s\n", document.dump(2).c_str());
    return;
  }
  std::printf("%lld  %s  %dx%d\n", static_cast<long long>(style.imageConfigTag), file.c_str(),
              size.width, size.height);
}

/// What both steps of the window's editor do, with one write of the records.
Exit makeNew(const Platform& platform, const ImageArguments& arguments) {
  const auto picture = platform.images.load(arguments.file);
  if (!picture) return fail(picture.failure());
  if (const auto bitmap = picture->bitmap(); !bitmap) return fail(bitmap.failure());
  const auto overlay = overlayOf(platform, *picture);
  if (!overlay) return fail({arguments.file, overlay.failure().why});

  const auto lock = lockHome(platform);
  if (!lock) return Exit::failed;
  const StyleFamily& family = styleFamily(families::image.name);
  const GroupStore store(platform);
  if (const auto readable = family.store().read(store); !readable) return fail(readable.failure());
  StyleRecords stored(platform, family.store());
  stored.load();
  if (stored.count() >= maximumWidgetStyles)
    return fail({"image new", std::string(family.words().overLimitMessage)});

  imageWidgetData style;
  style.imageSize = arguments.size == "large" ? 1 : 0;
  style.imagePosition = arguments.position;
  style.imageShowShadow = !arguments.noShadow;
  const StyleDraft draft{.record = style, .picture = *overlay};
  const RecordIndex index{static_cast<std::int64_t>(stored.count())};
  if (const Status kept = family.keep(platform, draft, index); !kept) return fail(kept.failure());
  StyleRecord& record = stored.append();
  family.copy(EditorStep::setup, draft, record);
  family.copy(EditorStep::second, draft, record);
  if (!stored.save()) return fail({family.store().records.name, "the store did not take it"});
  store.set(family.store().selected, index.value);
  if (!wasTaken(store, family.store().selected, index.value)) return Exit::failed;
  print(std::get<imageWidgetData>(record), overlayFileName(index), overlay->size(), arguments);
  return Exit::done;
}

} // namespace

void addImageCommand(CLI::App& program, CommandContext& context) {
  CLI::App* command = program.add_subcommand("image", "Make Image widget styles");
  command->require_subcommand(1);
  const auto arguments = std::make_shared<ImageArguments>();
  CLI::App* making = command->add_subcommand(
      "new", "Make a style of a cut-out picture, and the family's current one; prints its index, "
             "its file and the size of that");
  making->add_option("FILE", arguments->file, "The picture: PNG, with alpha, or JPEG or HEIC")
      ->required();
  making->add_option("--size", arguments->size, "How large it is shown")
      ->check(CLI::IsMember({"small", "large"}))
      ->capture_default_str();
  making->add_option("--position", arguments->position, "Where it is shown on the widget")
      ->check(CLI::IsMember({"left", "top", "centre", "bottom", "right"}))
      ->capture_default_str();
  making->add_flag("--no-shadow", arguments->noShadow, "Without a shadow");
  making->add_flag("--json", arguments->json, "One JSON document");
  making->callback(
      [&context, arguments] { context.exit = makeNew(context.platform(), *arguments); });
}

} // namespace vitrelle::cli
