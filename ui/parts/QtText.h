// The words of the logic as Qt's text.
#pragma once

#include <QString>

#include <string_view>

namespace vitrelle::ui {

inline QString qText(std::string_view words) {
  return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
}

} // namespace vitrelle::ui
