#include "host/drawing/Emoji.h"

#include <QList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <iterator>

namespace vitrelle::host {

namespace {

struct CodeRange {
  char32_t first;
  char32_t last;
};

/// Unicode's Emoji_Presentation: pictures without being asked for.
constexpr CodeRange pictures[] = {
    CodeRange{0x231A, 0x231B}, {0x23E9, 0x23EC},   {0x23F0, 0x23F0},   {0x23F3, 0x23F3},
    {0x25FD, 0x25FE},          {0x2614, 0x2615},   {0x2648, 0x2653},   {0x267F, 0x267F},
    {0x2693, 0x2693},          {0x26A1, 0x26A1},   {0x26AA, 0x26AB},   {0x26BD, 0x26BE},
    {0x26C4, 0x26C5},          {0x26CE, 0x26CE},   {0x26D4, 0x26D4},   {0x26EA, 0x26EA},
    {0x26F2, 0x26F3},          {0x26F5, 0x26F5},   {0x26FA, 0x26FA},   {0x26FD, 0x26FD},
    {0x2705, 0x2705},          {0x270A, 0x270B},   {0x2728, 0x2728},   {0x274C, 0x274C},
    {0x274E, 0x274E},          {0x2753, 0x2755},   {0x2757, 0x2757},   {0x2795, 0x2797},
    {0x27B0, 0x27B0},          {0x27BF, 0x27BF},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},
    {0x2B55, 0x2B55},          {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F18E},
    {0x1F191, 0x1F19A},        {0x1F1E6, 0x1F1FF}, {0x1F201, 0x1F201}, {0x1F21A, 0x1F21A},
    {0x1F22F, 0x1F22F},        {0x1F232, 0x1F236}, {0x1F238, 0x1F23A}, {0x1F250, 0x1F251},
    {0x1F300, 0x1F320},        {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C}, {0x1F37E, 0x1F393},
    {0x1F3A0, 0x1F3CA},        {0x1F3CF, 0x1F3D3}, {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4},
    {0x1F3F8, 0x1F43E},        {0x1F440, 0x1F440}, {0x1F442, 0x1F4FC}, {0x1F4FF, 0x1F53D},
    {0x1F54B, 0x1F54E},        {0x1F550, 0x1F567}, {0x1F57A, 0x1F57A}, {0x1F595, 0x1F596},
    {0x1F5A4, 0x1F5A4},        {0x1F5FB, 0x1F64F}, {0x1F680, 0x1F6C5}, {0x1F6CC, 0x1F6CC},
    {0x1F6D0, 0x1F6D2},        {0x1F6D5, 0x1F6D7}, {0x1F6DC, 0x1F6DF}, {0x1F6EB, 0x1F6EC},
    {0x1F6F4, 0x1F6FC},        {0x1F7E0, 0x1F7EB}, {0x1F7F0, 0x1F7F0}, {0x1F90C, 0x1F93A},
    {0x1F93C, 0x1F945},        {0x1F947, 0x1F9FF}, {0x1FA70, 0x1FAFF}};

constexpr char32_t joiner = 0x200D;
constexpr char32_t keycap = 0x20E3;
constexpr char32_t asText = 0xFE0E;
constexpr char32_t asPicture = 0xFE0F;
constexpr CodeRange skinTones{0x1F3FB, 0x1F3FF};
/// What comes before it is letters and punctuation, but for keycaps' digits and two signs.
constexpr char32_t firstPicture = 0xA9;
/// No emoji, whole or in part, but those that `asPicture` or a keycap follows.
constexpr char16_t firstTelling = 0x200D;

bool isPicture(char32_t code) {
  const CodeRange* range = std::ranges::lower_bound(pictures, code, {}, &CodeRange::last);
  return range != std::end(pictures) && code >= range->first;
}

/// A letter as people see it, with all that belongs to it.
bool isEmoji(const QList<uint>& cluster) {
  const auto has = [&](char32_t code) { return cluster.contains(code); };
  const bool toned = std::ranges::any_of(
      cluster, [](uint code) { return code >= skinTones.first && code <= skinTones.last; });
  if (has(asText)) return false;
  if (has(keycap)) return true;
  const char32_t base = cluster.front();
  if (base < firstPicture) return false;
  return isPicture(base) || has(asPicture) || toned ||
         (has(joiner) && QChar::category(base) == QChar::Symbol_Other);
}

} // namespace

std::vector<TextRange> emojiIn(const QString& text) {
  std::vector<TextRange> ranges;
  if (std::ranges::none_of(text, [](QChar c) { return c.unicode() >= firstTelling; }))
    return ranges;
  QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype start = 0, end = 0; start < text.size(); start = end) {
    end = clusters.toNextBoundary();
    if (!isEmoji(text.mid(start, end - start).toUcs4())) continue;
    const TextRange found{static_cast<int>(start), static_cast<int>(end - start)};
    if (!ranges.empty() && ranges.back().start + ranges.back().length == found.start)
      ranges.back().length += found.length;
    else
      ranges.push_back(found);
  }
  return ranges;
}

} // namespace vitrelle::host
