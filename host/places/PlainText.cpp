#include "host/places/PlainText.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

#include <cstdint>

namespace vitrelle::host {

namespace {

icu::UnicodeString unicode(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
}

/// Letters apart from their accents.
icu::UnicodeString decomposed(const icu::UnicodeString& text) {
  UErrorCode error = U_ZERO_ERROR;
  const icu::Normalizer2* const normalizer = icu::Normalizer2::getNFKDInstance(error);
  icu::UnicodeString result;
  if (U_SUCCESS(error) != 0) normalizer->normalize(text, result, error);
  return U_SUCCESS(error) != 0 ? result : text;
}

} // namespace

std::string plainText(std::string_view text) {
  icu::UnicodeString letters = decomposed(unicode(text));
  letters.foldCase();
  icu::UnicodeString plain;
  UChar between = 0; // what divides the next letter from the last one
  for (int32_t i = 0; i < letters.length(); i = letters.moveIndex32(i, 1)) {
    const UChar32 letter = letters.char32At(i);
    if ((U_GET_GC_MASK(letter) & U_GC_M_MASK) != 0) continue;
    if (letter == u',') {
      between = u'\n';
    } else if (u_isalnum(letter) == 0) {
      if (between == 0) between = u' ';
    } else {
      if (between != 0 && !plain.isEmpty()) plain.append(between);
      between = 0;
      plain.append(letter);
    }
  }
  std::string bytes;
  return plain.toUTF8String(bytes);
}

bool isSoundName(std::string_view text) {
  if (text.empty()) return false;
  const icu::UnicodeString characters = unicode(text);
  for (int32_t i = 0; i < characters.length(); i = characters.moveIndex32(i, 1)) {
    const UChar32 character = characters.char32At(i);
    if (character == 0xFFFD || u_iscntrl(character) != 0) return false;
  }
  return true;
}

} // namespace vitrelle::host
