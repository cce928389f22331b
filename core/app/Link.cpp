#include "core/app/Link.h"

#include <algorithm>
#include <charconv>

namespace vitrelle {

namespace {

constexpr std::string_view authorityMark = "://";

/// Escapes that are no two hexadecimal digits stay as they are.
std::string withoutEscapes(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned byte = 0;
    const char* const digits = text.data() + i + 1;
    if (text[i] == '%' && text.size() - i > 2 &&
        std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
      result.push_back(static_cast<char>(byte));
      i += 2;
    } else {
      result.push_back(text[i]);
    }
  }
  return result;
}

} // namespace

Link Link::parse(std::string_view url) {
  const std::size_t mark = url.find(authorityMark);
  if (mark == std::string_view::npos || mark == 0) return {};
  std::string_view rest = url.substr(mark + authorityMark.size());
  rest = rest.substr(0, rest.find_first_of("?#"));

  const std::size_t slash = rest.find('/');
  std::string_view authority = rest.substr(0, slash);
  authority.remove_prefix(authority.rfind('@') + 1); // nothing is found at -1
  authority = authority.substr(0, authority.find(':'));
  Link link;
  if (!authority.empty()) link.host = withoutEscapes(authority);
  if (slash == std::string_view::npos) return link;

  std::string_view path = rest.substr(slash);
  while (path.size() > 1 && path.ends_with('/'))
    path.remove_suffix(1);
  const std::size_t last = path.rfind('/');
  link.lastPathComponent = path.size() == 1 ? "/" : withoutEscapes(path.substr(last + 1));
  return link;
}

} // namespace vitrelle
