// The Weather family: the weather of where the device is, in words, as a picture of the hour, or as
// rings.
#pragma once

#include "core/lifecycle/StyleFamily.h"

#include <cstdint>
#include <string_view>

namespace vitrelle {

/// As the screens pass it on. The screens offer no forecast.
enum class WeatherKind : std::uint8_t { currentWeather, dynamic, rings, forecast };

/// How much the current weather tells, as records number it. Others are nothing.
namespace complexity {
inline constexpr std::int64_t plain = 0;
inline constexpr std::int64_t advanced = 1;
} // namespace complexity

/// Of a `pickedStyle`; the current weather for any other word.
WeatherKind weatherKind(std::string_view pickedStyle);
/// Of a record's number; the current weather for any but 2 and 3.
WeatherKind weatherKind(std::int64_t id);

class WeatherFamily final : public StyleFamily {
 public:
  WeatherFamily() : StyleFamily(families::weather.name) {}

  View face(const Platform& platform, const StyleRecord& record, FaceUse use) const override;
  /// A form shows its kind, and nothing for a complexity that there is not.
  View draftFace(const Platform& platform, const StyleDraft& draft, FaceUse use) const override;
  /// Fetches what is due, and follows what is stored.
  Subscription live(const Platform& platform, std::function<void()> changed) const override;

  std::unique_ptr<Gate> gate(const Platform& platform) const override;
  std::span<const StyleKind> kinds() const override;
  std::optional<FootLink> kindsFoot() const override;
  std::string kindOf(const StyleRecord& record) const override;
  StyleDraft newDraft(std::string_view kind) const override;
  std::vector<FormRow> rows(EditorStep step) const override;
  void copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const override;
};

} // namespace vitrelle
