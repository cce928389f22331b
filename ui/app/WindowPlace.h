// Where the window stood when it was last closed, and how large it was.
#pragma once

#include "core/platform/Platform.h"

#include <QRect>
#include <QString>
#include <QWindow>

#include <optional>

namespace vitrelle::ui {

/// As it is stored, "X Y WIDTH HEIGHT"; nothing for another text.
std::optional<QRect> parsePlace(const QString& text);

/// Gives the window its place of last time, as far as a screen of today shows it.
void restorePlace(const Platform& platform, QWindow& window);

/// Only while it is neither maximised nor hidden: what it goes back to is worth keeping.
void keepPlace(const Platform& platform, const QWindow& window);

} // namespace vitrelle::ui
