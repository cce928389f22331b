#include "ui/app/Navigator.h"

#include "ui/app/ScreenTable.h"

#include <utility>

namespace vitrelle::ui {

Place::Place(Navigator& navigator, OpenScreen screen)
    : navigator_(navigator), screen_(std::move(screen)) {}

QString Place::page() const {
  const ScreenEntry* entry = findScreen(screen_.name);
  return entry == nullptr ? QString() : QString::fromLatin1(entry->page);
}

QVariantMap Place::properties() const {
  const ScreenEntry* entry = findScreen(screen_.name);
  return entry == nullptr ? QVariantMap() : entry->make(navigator_, screen_);
}

Navigator::Navigator(const Platform& platform, Notices& notices)
    : platform_(platform), notices_(notices), view_(navigation_.onChange([this] { follow(); })) {
  follow();
}

Navigator::~Navigator() {
  qDeleteAll(places_);
}

QVariantList Navigator::places() const {
  QVariantList places;
  for (Place* const place : places_)
    places += QVariant::fromValue<QObject*>(place);
  return places;
}

void Navigator::open(const QString& name) {
  if (findScreen(name.toStdString()) != nullptr) navigation_.open(name.toStdString());
}

void Navigator::reveal(const QString& name) {
  if (findScreen(name.toStdString()) != nullptr) navigation_.reveal(name.toStdString());
}

void Navigator::openStyle(int styleNumber) {
  navigation_.open(Navigation::changeStyle, StyleNumber{styleNumber});
}

void Navigator::follow() {
  const std::vector<OpenScreen>& now = navigation_.screens();
  qsizetype same = 0;
  while (same < places_.size() && std::cmp_less(same, now.size()) &&
         places_[same]->screen() == now[static_cast<std::size_t>(same)])
    ++same;
  while (places_.size() > same)
    places_.takeLast()->deleteLater();
  for (auto i = static_cast<std::size_t>(same); i < now.size(); ++i)
    places_ += new Place(*this, now[i]);
  Q_EMIT changed();
}

} // namespace vitrelle::ui
