// How a widget on the home screen is told in which slot it stands: its user configures it, and the
// system hands the configuration over as an intent. These types are the contract with whatever
// draws the widgets; the application itself makes and handles none.
#pragma once

#include "core/slicing/WidgetLocation.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace vitrelle {

// In the order of the slots of each size.
enum class PositionEnumSmall : std::int64_t {
  unknown,
  topLeft,
  topRight,
  middleLeft,
  middleRight,
  bottomLeft,
  bottomRight,
};
enum class PositionEnumMedium : std::int64_t { unknown, top, middle, bottom };
enum class PositionEnumLarge : std::int64_t { unknown, top, bottom };

/// What a widget shows. The values besides `unknown` are 1, 2 and 6 to 10; which content each
/// stands for is the business of whoever draws the widgets.
enum class WidgetInformationOptions : std::int64_t { unknown };

/// How the handling of an intent went, as the platform numbers it.
enum class PositionIntentResponseCode : std::int64_t {
  unspecified,
  ready,
  continueInApp,
  inProgress,
  success,
  failure,
  failureRequiringAppLaunch,
};

/// The values of an enumeration, a bit for each.
template <class Enumeration>
inline constexpr std::uint64_t validValues = 0;
template <>
inline constexpr std::uint64_t validValues<PositionEnumSmall> = 0x7F;
template <>
inline constexpr std::uint64_t validValues<PositionEnumMedium> = 0xF;
template <>
inline constexpr std::uint64_t validValues<PositionEnumLarge> = 0x7;
template <>
inline constexpr std::uint64_t validValues<WidgetInformationOptions> = 0x7C7;
template <>
inline constexpr std::uint64_t validValues<PositionIntentResponseCode> = 0x7F;

/// Nothing for a number that is none of the enumeration's values.
template <class Enumeration>
constexpr std::optional<Enumeration> fromRawValue(std::int64_t value) {
  constexpr std::uint64_t values = validValues<Enumeration>;
  constexpr std::int64_t bits = 64;
  if (value < 0 || value >= bits || (values >> value & 1) == 0) return std::nullopt;
  return static_cast<Enumeration>(value);
}

/// The configuration of a widget.
template <class Position>
struct PositionIntent {
  Position position = Position::unknown;
  WidgetInformationOptions informationOptions = WidgetInformationOptions::unknown;
  bool operator==(const PositionIntent&) const = default;
};
using PositionSmallIntent = PositionIntent<PositionEnumSmall>;
using PositionMediumIntent = PositionIntent<PositionEnumMedium>;
using PositionLargeIntent = PositionIntent<PositionEnumLarge>;

using PositionSmallIntentResponseCode = PositionIntentResponseCode;
using PositionMediumIntentResponseCode = PositionIntentResponseCode;
using PositionLargeIntentResponseCode = PositionIntentResponseCode;

/// The answer to an intent of a size.
template <class Position>
struct PositionIntentResponse {
  PositionIntentResponseCode code = PositionIntentResponseCode::unspecified;
  std::optional<std::string> userActivity; ///< type of what the application is to go on with
  bool operator==(const PositionIntentResponse&) const = default;
};
using PositionSmallIntentResponse = PositionIntentResponse<PositionEnumSmall>;
using PositionMediumIntentResponse = PositionIntentResponse<PositionEnumMedium>;
using PositionLargeIntentResponse = PositionIntentResponse<PositionEnumLarge>;

/// What became of a parameter of an intent: settled, or to be confirmed by the user.
template <class Enumeration>
struct EnumResolutionResult {
  enum class Kind { success, confirmationRequired };
  Kind kind;
  std::int64_t value;

  static constexpr EnumResolutionResult successWithResolved(Enumeration value) {
    return {Kind::success, static_cast<std::int64_t>(value)};
  }
  static constexpr EnumResolutionResult confirmationRequiredWith(Enumeration toConfirm) {
    return {Kind::confirmationRequired, static_cast<std::int64_t>(toConfirm)};
  }
  bool operator==(const EnumResolutionResult&) const = default;
};
using PositionEnumSmallResolutionResult = EnumResolutionResult<PositionEnumSmall>;
using PositionEnumMediumResolutionResult = EnumResolutionResult<PositionEnumMedium>;
using PositionEnumLargeResolutionResult = EnumResolutionResult<PositionEnumLarge>;
using WidgetInformationOptionsResolutionResult = EnumResolutionResult<WidgetInformationOptions>;

/// What whoever handles intents of a size has to offer.
template <class Position>
struct PositionIntentHandling {
  using Operation =
      std::function<void(const PositionIntent<Position>&,
                         std::function<void(const PositionIntentResponse<Position>&)> completion)>;
  Operation handlePosition;
  Operation confirmPosition;
};
using PositionSmallIntentHandling = PositionIntentHandling<PositionEnumSmall>;
using PositionMediumIntentHandling = PositionIntentHandling<PositionEnumMedium>;
using PositionLargeIntentHandling = PositionIntentHandling<PositionEnumLarge>;

/// The slot in which a widget of the size stands, by the raw value of its position; `error` for the
/// unknown one and for a number that is none.
WidgetLocationImageNames slotAt(WidgetFamily size, std::int64_t position);

} // namespace vitrelle
