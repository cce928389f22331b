#include "core/faces/TextFamily.h"

#include "core/faces/CustomTextPreviewView.h"

namespace vitrelle {

namespace {

constexpr const char* noText = "No Text Set";
/// Between the words and the edge of a small widget, points.
constexpr double tileInset = 8;

View face(const Platform& platform, const textWidgetData& record, FaceUse use) {
  const Colour& colour = record.textWidgetTextColour;
  const bool placeholder = use == FaceUse::setup && record.textWidgetText.empty();
  const View words =
      CustomTextPreviewView{.text = placeholder ? noText : record.textWidgetText,
                            .colour = {colour.red, colour.green, colour.blue, colour.alpha},
                            .fontName = record.textWidgetFont,
                            .textSize = record.textWidgetSize,
                            .showShadow = record.textWidgetShadow}
          .view();
  switch (use) {
  case FaceUse::gallery:
    return padded(words, {tileInset, tileInset, tileInset, tileInset});
  case FaceUse::preview:
    return words;
  case FaceUse::setup:
  case FaceUse::second:
  case FaceUse::assign:
    return framed(words, platform.device.screenBounds().width - 70, std::nullopt);
  }
  return words;
}

void copySetup(const textWidgetData& from, textWidgetData& to) {
  to.textWidgetText = from.textWidgetText;
  to.textWidgetFont = from.textWidgetFont;
  to.textWidgetSize = from.textWidgetSize;
  to.textWidgetShadow = from.textWidgetShadow;
}

void copyColour(const textWidgetData& from, textWidgetData& to) {
  to.textWidgetTextColour = from.textWidgetTextColour;
}

} // namespace

const StyleFamily<textWidgetData>& textFamily() {
  static const StyleFamily<textWidgetData> family{
      .store = families::text,
      .face = face,
      .setupRows = {rowOver("Enter Text Here", FormControl::text, &textWidgetData::textWidgetText),
                    rowOver("Font", FormControl::font, &textWidgetData::textWidgetFont),
                    rowOver("Size: ", FormControl::stepper, &textWidgetData::textWidgetSize),
                    rowOver("Show Shadow", FormControl::toggle, &textWidgetData::textWidgetShadow)},
      .copySetup = copySetup,
      .secondRows = {rowOver("Text Colour", FormControl::colourWell,
                             &textWidgetData::textWidgetTextColour)},
      .copySecond = copyColour};
  return family;
}

} // namespace vitrelle
