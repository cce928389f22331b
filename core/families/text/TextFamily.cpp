#include "core/families/text/TextFamily.h"

#include "core/families/text/CustomTextPreviewView.h"

#include <utility>

namespace vitrelle {

namespace {

constexpr const char* noText = "No Text Set";
/// Between the words and the edge of a small widget, points.
constexpr double inset = 8;

} // namespace

View TextFamily::face(const Platform& platform, const StyleRecord& record, FaceUse use) const {
  const auto& style = std::get<textWidgetData>(record);
  const View words = CustomTextPreviewView{.text = style.textWidgetText,
                                           .colour = platformColour(style.textWidgetTextColour),
                                           .fontName = style.textWidgetFont,
                                           .textSize = style.textWidgetSize,
                                           .showShadow = style.textWidgetShadow}
                         .view();
  switch (use) {
  case FaceUse::gallery:
    return padded(words, {inset, inset, inset, inset});
  case FaceUse::preview:
  case FaceUse::widget:
  case FaceUse::wideWidget:
    return words;
  case FaceUse::setup:
  case FaceUse::second:
  case FaceUse::assign:
    return framed(words, platform.device.screenBounds().width - 70, std::nullopt);
  }
  return words;
}

View TextFamily::draftFace(const Platform& platform, const StyleDraft& draft, FaceUse use) const {
  auto style = std::get<textWidgetData>(draft.record);
  if (use == FaceUse::setup && style.textWidgetText.empty()) style.textWidgetText = noText;
  return face(platform, style, use);
}

StyleDraft TextFamily::draftOf(const StyleRecord& record) const {
  auto style = std::get<textWidgetData>(record);
  style.textWidgetTextColour = colours::white;
  return {.record = std::move(style)};
}

std::vector<FormRow> TextFamily::rows(EditorStep step) const {
  if (step == EditorStep::second) {
    return {rowOver("Text Colour", FormControl::colourWell, &textWidgetData::textWidgetTextColour)};
  }
  return {rowOver("Enter Text Here", FormControl::text, &textWidgetData::textWidgetText),
          rowOver("Font", FormControl::font, &textWidgetData::textWidgetFont),
          rowOver("Size: ", FormControl::stepper, &textWidgetData::textWidgetSize),
          rowOver("Show Shadow", FormControl::toggle, &textWidgetData::textWidgetShadow)};
}

void TextFamily::copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const {
  const auto& draft = std::get<textWidgetData>(from.record);
  auto& style = std::get<textWidgetData>(to);
  if (step == EditorStep::second) {
    style.textWidgetTextColour = draft.textWidgetTextColour;
    return;
  }
  style.textWidgetText = draft.textWidgetText;
  style.textWidgetFont = draft.textWidgetFont;
  style.textWidgetSize = draft.textWidgetSize;
  style.textWidgetShadow = draft.textWidgetShadow;
}

} // namespace vitrelle
