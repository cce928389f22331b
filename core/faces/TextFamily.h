// The Text family: a few words in a font, a size and a colour.
#pragma once

#include "core/lifecycle/StyleAssign.h"
#include "core/lifecycle/StyleColours.h"
#include "core/lifecycle/StyleEntry.h"
#include "core/lifecycle/StyleFamily.h"
#include "core/lifecycle/StyleGallery.h"
#include "core/lifecycle/StylePreview.h"
#include "core/lifecycle/StyleSetup.h"

namespace vitrelle {

const StyleFamily<textWidgetData>& textFamily();

using ModernCustomTextView = StyleEntry;
using ModernCustomTextSetupView = StyleSetup<textWidgetData>;
using ModernCustomTextColourView = StyleColours<textWidgetData>;
using ModernCustomTextGalleryView = StyleGalleryOf<textWidgetData>;
using ModernCustomTextAssignView = StyleAssignOf<textWidgetData>;
using ModernCustomTextPreviewView = StylePreviewOf<textWidgetData>;

} // namespace vitrelle
