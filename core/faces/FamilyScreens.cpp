#include "core/faces/FamilyScreens.h"

#include "core/faces/TextFamily.h"
#include "core/platform/FatalError.h"

#include <array>
#include <string>

namespace vitrelle {

namespace {

template <class Record>
class ScreensOf final : public FamilyScreens {
 public:
  explicit ScreensOf(const StyleFamily<Record>& family) : family_(family) {}

  const FamilyDescription& words() const override { return family_.words(); }
  bool hasEditor() const override { return !family_.setupRows.empty(); }
  std::unique_ptr<StyleEntry> entry(const Platform& platform) const override {
    return std::make_unique<StyleEntry>(
        platform, words(), std::make_unique<FamilyRecords<Record>>(platform, family_.store),
        hasEditor());
  }
  std::unique_ptr<StyleFirstStep> setup(const Platform& platform,
                                        const EditorTask& task) const override {
    return std::make_unique<StyleSetup<Record>>(platform, family_, task);
  }
  std::unique_ptr<StyleGallery> gallery(const Platform& platform) const override {
    return std::make_unique<StyleGalleryOf<Record>>(platform, family_);
  }
  std::unique_ptr<StyleAssign> assign(const Platform& platform,
                                      std::int64_t configNumber) const override {
    return std::make_unique<StyleAssignOf<Record>>(platform, family_, configNumber);
  }
  std::unique_ptr<StylePreview> preview(const Platform& platform) const override {
    return std::make_unique<StylePreviewOf<Record>>(platform, family_);
  }

 private:
  const StyleFamily<Record>& family_;
};

/// A family whose face and forms are still to be made: its records are listed and linked.
template <class Record>
const StyleFamily<Record>& withoutEditor(const Family<Record>& store) {
  static const StyleFamily<Record> family{
      .store = store,
      .face = [](const Platform&, const Record&, FaceUse) { return spacer(); },
      .setupRows = {},
      .copySetup = [](const Record&, Record&) {},
      .secondRows = {},
      .copySecond = [](const Record&, Record&) {}};
  return family;
}

} // namespace

const FamilyScreens& familyScreens(std::string_view family) {
  static const ScreensOf text(textFamily());
  static const ScreensOf music(withoutEditor(families::music));
  static const ScreensOf image(withoutEditor(families::image));
  static const ScreensOf battery(withoutEditor(families::battery));
  static const ScreensOf weather(withoutEditor(families::weather));
  static const ScreensOf clock(withoutEditor(families::clock));
  static const std::array<const FamilyScreens*, 6> all{&text,    &music,   &image,
                                                       &battery, &weather, &clock};
  for (const FamilyScreens* screens : all) {
    if (screens->words().name == family) return *screens;
  }
  fatalError("there is no widget family " + std::string(family));
}

} // namespace vitrelle
