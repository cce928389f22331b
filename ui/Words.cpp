#include "ui/Words.h"

#include <QCoreApplication>

namespace vitrelle::ui {

void installWords(QTranslator& translator, const QLocale& locale) {
  const QString folder = QStringLiteral(":/words");
  if (translator.load(locale, QStringLiteral("vitrelle"), QStringLiteral("_"), folder) ||
      translator.load(QStringLiteral("vitrelle_en"), folder)) {
    QCoreApplication::installTranslator(&translator);
  }
}

} // namespace vitrelle::ui
