#include "core/lifecycle/StyleKinds.h"

#include "core/lifecycle/Backdrop.h"

namespace vitrelle {

PointSize StyleKinds::sampleSize() const {
  return {panelWidth(platform_), sampleHeight};
}

void StyleKinds::pressFoot() const {
  if (const auto link = foot()) link->press(platform_);
}

DisplayList StyleKinds::sample(const StyleKind& kind) const {
  return layOut(kind.sample(platform_), sampleSize(), platform_.drawing);
}

} // namespace vitrelle
