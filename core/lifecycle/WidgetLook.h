// From a slot to what its widget shows: which record of the family, before which background, with
// which face. Widgets, tiles and the command line all come this way; none of it knows an editor.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/StyleFamily.h"

#include <optional>

namespace vitrelle {

/// The style that a widget of the family shows: the one that is linked to the wallpaper style in
/// use, else the family's chosen one, else its first. None of a family without any.
std::optional<StyleRecord> shownRecord(const Platform& platform, const StyleFamily& family);

/// The record's face in the middle of a widget of the size, in points. More than half the screen is
/// the size of a wide one.
DisplayList widgetFace(const Platform& platform, const StyleFamily& family,
                       const StyleRecord& record, const PointSize& size,
                       FaceUse use = FaceUse::widget);

/// The same of a draft, which may hold a picture that no record has yet.
DisplayList widgetFace(const Platform& platform, const StyleFamily& family, const StyleDraft& draft,
                       const PointSize& size, FaceUse use = FaceUse::widget);

/// What a widget of a record stands on: the slice of the wallpaper style that the record is linked
/// to, else of the one in use, in the present appearance.
std::optional<SliceName> widgetBackdrop(const Platform& platform, const StyleRecord& record,
                                        WidgetLocationImageNames slot);

} // namespace vitrelle
