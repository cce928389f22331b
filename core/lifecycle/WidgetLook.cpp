#include "core/lifecycle/WidgetLook.h"

#include "core/lifecycle/StyleRecords.h"

#include <algorithm>

namespace vitrelle {

namespace {

FaceUse sizedUse(const Platform& platform, const PointSize& size, FaceUse use) {
  const bool isWide = size.width > platform.device.screenBounds().width / 2;
  return use == FaceUse::widget && isWide ? FaceUse::wideWidget : use;
}

} // namespace

std::optional<StyleRecord> shownRecord(const Platform& platform, const StyleFamily& family) {
  StyleRecords stored(platform, family.store());
  stored.load();
  const auto linked = std::ranges::find(stored.records, std::optional(styleInUse(platform)),
                                        [](const StyleRecord& each) { return linkedStyle(each); });
  if (linked != stored.records.end()) return *linked;
  const RecordIndex chosen{GroupStore(platform).valueOrDefault(family.store().selected)};
  if (const StyleRecord* record = stored.at(chosen)) return *record;
  if (stored.records.empty()) return std::nullopt;
  return stored.records.front();
}

DisplayList widgetFace(const Platform& platform, const StyleFamily& family,
                       const StyleRecord& record, const PointSize& size, FaceUse use) {
  return layOut(family.face(platform, record, sizedUse(platform, size, use)), size,
                platform.drawing);
}

DisplayList widgetFace(const Platform& platform, const StyleFamily& family, const StyleDraft& draft,
                       const PointSize& size, FaceUse use) {
  return layOut(family.draftFace(platform, draft, sizedUse(platform, size, use)), size,
                platform.drawing);
}

std::optional<SliceName> widgetBackdrop(const Platform& platform, const StyleRecord& record,
                                        WidgetLocationImageNames slot) {
  if (const auto linked = linkedStyle(record)) {
    auto slice = findSlice(platform, slot, *linked, currentAppearance(platform));
    if (slice) return slice;
  }
  return currentSlice(platform, slot);
}

} // namespace vitrelle
