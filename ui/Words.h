// The texts that are shown in the user's language.
#pragma once

#include <QLocale>
#include <QTranslator>

namespace vitrelle::ui {

/// Loads the locale's texts, in English where there are none, and installs them. The translator
/// must live as long as the application.
void installWords(QTranslator& translator, const QLocale& locale);

} // namespace vitrelle::ui
