#include "core/centre/ModernImageExportView.h"

#include "core/platform/FatalError.h"
#include "core/slicing/ImageLoader.h"
#include "core/store/Keys.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace vitrelle {

ModernImageExportView::ModernImageExportView(const Platform& platform)
    : platform_(platform),
      amounts_(StoredValue(platform, keys::amountOfConfigs)
                   .onChange([this](const std::optional<std::int64_t>& amount) {
                     configAmounts_ = amount.value_or(0);
                     changed();
                   })) {}

void ModernImageExportView::select(std::int64_t style) {
  selection_ = style;
  changed();
}

void ModernImageExportView::setLightDark(std::int64_t lightDark) {
  lightDark_ = lightDark;
  changed();
}

void ModernImageExportView::setWidgetSize(std::int64_t size) {
  widgetSize_ = std::clamp<std::int64_t>(size, 0, std::ssize(sizes) - 1);
  changed();
}

std::vector<std::vector<SliceName>> ModernImageExportView::rows() const {
  std::vector<std::vector<SliceName>> rows;
  if (selection_ < 0 || selection_ >= configAmounts_) return rows;
  const std::size_t columns = family() == WidgetFamily::small ? 2 : 1;
  for (const WidgetLocationImageNames slot : slots(family())) {
    const std::string_view stem = rawValue(slot);
    static_cast<void>(slice(stem)); // it is there
    if (rows.empty() || rows.back().size() == columns) rows.emplace_back();
    rows.back().push_back({std::string(stem), {selection_}, appearance()});
  }
  return rows;
}

PointSize ModernImageExportView::previewSize() const {
  const double width = platform_.device.screenBounds().width;
  const double wide = width - 60;
  const double small = width / 2.5;
  switch (family()) {
  case WidgetFamily::small:
    return {small, small};
  case WidgetFamily::medium:
    return {wide, small};
  case WidgetFamily::large:
    return {wide, wide};
  }
  fatalError("a widget family that does not exist");
}

double ModernImageExportView::rowSpacing() const {
  return platform_.device.screenBounds().width / 18;
}

void ModernImageExportView::tap(std::string_view stem) {
  activeSheet_ = IEActiveSheet{ActivityView{
      {{.image = slice(stem), .fileName = sliceFileName({selection_}, stem, appearance())}}}};
  changed();
}

void ModernImageExportView::dismissSheet() {
  activeSheet_.reset();
  changed();
}

Image ModernImageExportView::slice(std::string_view stem) const {
  auto image = ImageLoader(platform_).loadSlice(stem, appearance(), {selection_});
  if (!image) {
    fatalError("style " + std::to_string(selection_) + " has no slice " +
               sliceFileName({selection_}, stem, appearance()));
  }
  return *std::move(image);
}

} // namespace vitrelle
