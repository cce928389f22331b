// The sheet in which a user picks a symbol from a list of the catalogue. It stays open after a
// choice, so that the choice can be seen among the others.
#pragma once

#include "core/drawing/View.h"
#include "core/pickers/SymbolCatalogue.h"
#include "core/platform/Platform.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vitrelle {

class SFSymbolsPicker final {
 public:
  /// Both values belong to the screen that shows the sheet. `dismiss` closes it and is what the
  /// close button does.
  SFSymbolsPicker(const Platform& platform, bool& isPresented, std::string& icon, Category category,
                  Axis axis, bool haptic, std::function<void()> dismiss)
      : platform_(platform),
        isPresented_(isPresented),
        icon_(icon),
        category_(category),
        axis_(axis),
        haptic_(haptic),
        dismiss_(std::move(dismiss)) {}

  bool isPresented() const { return isPresented_; }
  /// Shown in the header, also when it is in no list.
  const std::string& icon() const { return icon_; }
  /// The direction of scrolling.
  Axis axis() const { return axis_; }

  /// The cells' names, in order. Ends the program for a category without a list.
  const std::vector<std::string_view>& names() const;
  /// Whether the cell of the name is the marked one.
  bool isSelected(std::string_view name) const { return name == icon_; }

  /// A tap on a cell, be it the selected one.
  void select(std::string_view name);
  void close() const { dismiss_(); }

 private:
  const Platform& platform_;
  bool& isPresented_;
  std::string& icon_;
  Category category_;
  Axis axis_;
  bool haptic_; ///< whether a tap can be felt
  std::function<void()> dismiss_;
};

} // namespace vitrelle
