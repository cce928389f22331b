// The choice of a kind, on the way from a family's entry to the form of a new style.
#pragma once

#include "core/lifecycle/StyleFamily.h"
#include "core/platform/Screen.h"

#include <optional>
#include <span>
#include <string_view>

namespace vitrelle {

class StyleKinds final : public Screen {
 public:
  /// How large a sample is drawn, points.
  static constexpr double sampleHeight = 130;

  /// The platform and the family must outlive it.
  StyleKinds(const Platform& platform, const StyleFamily& family)
      : platform_(platform), family_(family), live_(family.live(platform, [this] { changed(); })) {}

  const StyleFamily& family() const { return family_; }
  std::span<const StyleKind> kinds() const { return family_.kinds(); }
  /// As large as the tiles of the forms are wide.
  PointSize sampleSize() const;
  /// The live sample of one of the kinds.
  DisplayList sample(const StyleKind& kind) const;
  /// Below them, and only where the family has such a line.
  std::optional<FootLink> foot() const { return family_.kindsFoot(); }
  void pressFoot() const;

 private:
  const Platform& platform_;
  const StyleFamily& family_;
  Subscription live_; ///< last, for it calls this screen
};

} // namespace vitrelle
