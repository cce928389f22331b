// What stands before a family's entry and lets nobody in until the platform does.
#pragma once

#include "core/platform/Screen.h"

#include <cstdint>
#include <string_view>

namespace vitrelle {

enum class GateState : std::uint8_t {
  waiting, ///< for an answer of the platform, however long that takes
  open,
  refused,
};

/// What is shown to whom the gate refuses. Sizes are in points.
struct GateRefusal {
  std::string_view symbol = {};  ///< at the head, 80 large; or
  std::string_view picture = {}; ///< one of the program's own, 60 large, and small by the message
  std::string_view title = {};   ///< 38 large
  std::string_view message = {};
  double messageSize = 16;
  bool isMessageOnPanel = false; ///< half as high as the screen is wide
  std::string_view offer = {};   ///< a line of its own above the button
  std::string_view offerSymbol = {};
  std::string_view button = {}; ///< leads out of the application, which its arrow says
  std::string_view buttonSymbol = {};
};

/// The symbol behind the words of the button.
inline constexpr std::string_view gateArrow = "arrow.up.right";

class Gate : public Screen {
 public:
  virtual ~Gate() = default;

  /// Each time that the screen appears.
  virtual void appear() = 0;
  virtual GateState state() const = 0;
  virtual const GateRefusal& refusal() const = 0;
  /// The button of the refusal.
  virtual void press() = 0;
};

} // namespace vitrelle
