#include "core/families/image/ImageFamily.h"

#include "core/families/image/PlacedPicture.h"
#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/StyleEditor.h"
#include "core/platform/FatalError.h"
#include "core/slicing/ImageLoader.h"
#include "core/slicing/ImageOverlay.h"

#include <utility>

namespace vitrelle {

namespace {

using Record = imageWidgetData;

constexpr PlatformColour white{1, 1, 1, 1};
/// How much smaller than the screen a page of the preview is.
constexpr double pageShare = 1 / 1.5;

View placed(const Platform& platform, const Record& style, const Image& image, FaceUse use) {
  const View view =
      PlacedPicture{.image = image,
                    .size = style.imageSize,
                    .position = style.imagePosition,
                    .showShadow = style.imageShowShadow,
                    .isSmallWidget = use == FaceUse::gallery || use == FaceUse::widget}
          .view(platform.device.screenBounds().width);
  if (use != FaceUse::preview) return view;
  const PointSize medium = mediumPreviewSize(platform);
  return scaled(framed(view, medium.width, medium.height), pageShare);
}

} // namespace

View ImageFamily::face(const Platform& platform, const StyleRecord& record, FaceUse use) const {
  const auto overlay = ImageLoader(platform).loadOverlay(tagOf(record));
  return overlay ? placed(platform, std::get<Record>(record), *overlay, use) : spacer();
}

View ImageFamily::draftFace(const Platform& platform, const StyleDraft& draft, FaceUse use) const {
  if (draft.picture) return placed(platform, std::get<Record>(draft.record), *draft.picture, use);
  if (use == FaceUse::setup) return text("No Image Set", {}, white);
  return face(platform, draft.record, use);
}

PointRect ImageFamily::previewBox(const Platform& platform, const PointSize& page) const {
  const PointSize medium = mediumPreviewSize(platform);
  const double width = medium.width * pageShare;
  return {(page.width - width) / 2, topBox(platform, page, 0).y, width, medium.height * pageShare};
}

void ImageFamily::galleryLoaded(const Platform& platform, std::size_t count) const {
  platform.debugConsole.print("LENGTH OF ARRAY: " + std::to_string(count));
}

/// At the size at which it will be kept: a photograph of many pixels is not held. One that can't be
/// had at that size stays as it is, and its saving fails.
Image ImageFamily::takenIn(const Platform& platform, const Image& picture) const {
  const auto overlay = overlayOf(platform, picture);
  return overlay ? *overlay : picture;
}

std::vector<FormRow> ImageFamily::rows(EditorStep step) const {
  if (step == EditorStep::second) {
    return {menuOver("Position", "Image Size", &Record::imagePosition,
                     {{.value = "left", .words = "Left"},
                      {.value = "top", .words = "Top"},
                      {.value = "centre", .words = "Centre"},
                      {.value = "bottom", .words = "Bottom"},
                      {.value = "right", .words = "Right"}})};
  }
  return {
      button("doc.on.clipboard.fill", "Paste Image", [](StyleEditor& editor) { editor.paste(); }),
      note("person.and.background.dotted",
           "You can use the Photos app to copy the subject and paste it into Vitrelle."),
      rowOver("Show Shadow", FormControl::toggle, &Record::imageShowShadow),
      choiceOver("Image Size", "", &Record::imageSize,
                 {{.value = 0, .symbol = "arrow.down.right.and.arrow.up.left", .words = "Small"},
                  {.value = 1, .symbol = "arrow.up.left.and.arrow.down.right", .words = "Large"}})};
}

void ImageFamily::copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const {
  const auto& draft = std::get<Record>(from.record);
  auto& style = std::get<Record>(to);
  if (step == EditorStep::second) {
    style.imagePosition = draft.imagePosition;
    return;
  }
  style.imageSize = draft.imageSize;
  style.imageShowShadow = draft.imageShowShadow;
}

Status ImageFamily::keep(const Platform& platform, const StyleDraft& draft,
                         RecordIndex index) const {
  if (!draft.picture) return Failure{overlayFileName(index), "no picture is set"};
  return storeOverlay(platform, *draft.picture, index);
}

std::optional<Image> ImageFamily::kept(const Platform& platform, RecordIndex index) const {
  auto overlay = ImageLoader(platform).loadOverlay(index);
  if (!overlay) fatalError("a widget style is to be edited without " + overlayFileName(index));
  return overlay;
}

} // namespace vitrelle
