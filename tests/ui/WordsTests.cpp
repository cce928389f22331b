// Every language has every text, and every text that is asked for exists.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace vitrelle {
namespace {

using Texts = QMap<QString, QString>;

Texts textsOf(const QString& language) {
  QFile file(QStringLiteral(VITRELLE_SOURCES "/assets/words/vitrelle_%1.ts").arg(language));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  Texts texts;
  QString id;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QStringLiteral("message")) id = xml.attributes().value("id").toString();
    if (xml.name() == QStringLiteral("translation")) texts[id] = xml.readElementText();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return texts;
}

QSet<QString> places(const QString& text) {
  QSet<QString> found;
  for (auto match = QRegularExpression(QStringLiteral("%[0-9]")).globalMatch(text);
       match.hasNext();)
    found.insert(match.next().captured());
  return found;
}

TEST(Words, languages_haveTheSameTexts) {
  const Texts english = textsOf(QStringLiteral("en"));
  const Texts german = textsOf(QStringLiteral("de"));
  EXPECT_EQ(english.keys(), german.keys());
  for (auto text = english.begin(); text != english.end(); ++text) {
    const QString& other = german[text.key()];
    EXPECT_FALSE(text.value().isEmpty() || other.isEmpty()) << text.key().toStdString();
    EXPECT_EQ(places(text.value()), places(other)) << text.key().toStdString();
  }
}

TEST(Words, whatIsAskedFor_isThere) {
  const Texts english = textsOf(QStringLiteral("en"));
  QSet<QString> asked;
  const QRegularExpression asking(QStringLiteral("q[st]+TrId\\(\"([^\"]+)\""));
  for (QDirIterator files(QStringLiteral(VITRELLE_SOURCES "/ui"), {"*.qml", "*.cpp"}, QDir::Files,
                          QDirIterator::Subdirectories);
       files.hasNext();) {
    QFile file(files.next());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    for (auto match = asking.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();)
      asked.insert(match.next().captured(1));
  }
  EXPECT_GT(asked.size(), 10);
  for (const QString& id : asked)
    EXPECT_TRUE(english.contains(id)) << id.toStdString();
  for (const QString& id : english.keys())
    EXPECT_TRUE(asked.contains(id)) << id.toStdString() << " is never shown";
}

} // namespace
} // namespace vitrelle
