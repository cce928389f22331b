// The sheet in which a user picks a symbol from a list of the catalogue. It stays open after a
// choice, so that the choice can be seen among the others.
#pragma once

#include "core/drawing/View.h"
#include "core/pickers/SymbolCatalogue.h"
#include "core/platform/Platform.h"

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace vitrelle {

class SFSymbolsPicker final {
 public:
  /// The choice belongs to whoever shows the sheet: `picked` hands it over. `dismiss` closes the
  /// sheet and is what the close button does.
  SFSymbolsPicker(const Platform& platform, Category category, Axis axis, bool haptic,
                  std::function<void(std::string_view)> picked, std::function<void()> dismiss)
      : platform_(platform),
        category_(category),
        axis_(axis),
        haptic_(haptic),
        picked_(std::move(picked)),
        dismiss_(std::move(dismiss)) {}

  /// The direction of scrolling.
  Axis axis() const { return axis_; }
  /// The cells' names, in order. Ends the program for a category without a list.
  const std::vector<std::string_view>& names() const;

  /// A tap on a cell, be it the selected one.
  void select(std::string_view name) const;
  void close() const { dismiss_(); }

 private:
  const Platform& platform_;
  Category category_;
  Axis axis_;
  bool haptic_; ///< whether a tap can be felt
  std::function<void(std::string_view)> picked_;
  std::function<void()> dismiss_;
};

} // namespace vitrelle
