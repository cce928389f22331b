// Which parts of a text are drawn as small pictures. The font library falls back letter by letter,
// so it takes the parts of one picture from several fonts, and the first part often from one of
// black signs.
#pragma once

#include <QString>

#include <vector>

namespace vitrelle::host {

/// In code units of the text.
struct TextRange {
  int start = 0;
  int length = 0;
  bool operator==(const TextRange&) const = default;
};

/// One range for pictures that follow each other. A flag, a family or a keycap is one picture.
std::vector<TextRange> emojiIn(const QString& text);

} // namespace vitrelle::host
