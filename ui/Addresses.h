// Where the program leads outside itself. Whoever packages it puts addresses of his own here; those
// under ".example" lead nowhere, and count as not set.
#pragma once

#include <QUrl>

#include <string_view>

namespace vitrelle::ui::addresses {

/// The page on which a user rates the program.
inline constexpr std::string_view review = "https://vitrelle.example/review";

/// Its address; empty where none is set.
inline QUrl set(std::string_view address) {
  const QUrl url(QString::fromLatin1(address.data(), static_cast<qsizetype>(address.size())));
  const bool isReserved = url.host().endsWith(QStringLiteral(".example"));
  return isReserved || url.scheme() != QStringLiteral("https") ? QUrl() : url;
}

} // namespace vitrelle::ui::addresses
