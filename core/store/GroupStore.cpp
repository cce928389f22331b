#include "core/store/GroupStore.h"

#include "core/store/RecordCoding.h"

namespace vitrelle {

namespace {

template <class T>
std::optional<T> decoded(const std::optional<StoreValue>& stored) {
  return stored ? decodeStored<T>(*stored) : std::nullopt;
}

} // namespace

template <class T>
std::optional<T> GroupStore::value(const Key<T>& key) const {
  const auto stored = platform_->defaults.value(key.suite, key.name);
  return stored ? decoded<T>(*stored) : std::nullopt;
}

template <class T>
void GroupStore::set(const Key<T>& key, const T& value) const {
  // The logic goes on as if the write had worked.
  static_cast<void>(platform_->defaults.set(key.suite, key.name, value));
}

template <class T>
Subscription GroupStore::subscribe(const Key<T>& key,
                                   std::function<void(const std::optional<T>&)> subscriber) const {
  return platform_->defaults.watch(
      key.suite, key.name,
      [subscriber = std::move(subscriber)](const auto& stored) { subscriber(decoded<T>(stored)); });
}

template <class Record>
std::vector<Record> GroupStore::loadRecords(const Family<Record>& family) const {
  const std::optional<Data> json = value(family.records);
  if (!json) return {};
  return decodeRecords<Record>(*json).value_or(std::vector<Record>());
}

template <class Record>
void GroupStore::saveRecords(const Family<Record>& family,
                             const std::vector<Record>& records) const {
  const Result<Data> json = encodeRecords(records);
  if (!json) {
    const Failure& error = json.failure();
    platform_->debugConsole.print("Unable to Encode Data (" + error.what + ": " + error.why + ")");
    return;
  }
  set(family.records, *json);
  platform_->widgetCenter.reloadAllTimelines();
}

#define VITRELLE_STORED(T)                                                                         \
  template std::optional<T> GroupStore::value(const Key<T>&) const;                                \
  template void GroupStore::set(const Key<T>&, const T&) const;                                    \
  template Subscription GroupStore::subscribe(const Key<T>&,                                       \
                                              std::function<void(const std::optional<T>&)>) const

VITRELLE_STORED(std::int64_t);
VITRELLE_STORED(double);
VITRELLE_STORED(bool);
VITRELLE_STORED(std::string);
VITRELLE_STORED(Data);
VITRELLE_STORED(Date);

#define VITRELLE_RECORDED(Record)                                                                  \
  template std::vector<Record> GroupStore::loadRecords(const Family<Record>&) const;               \
  template void GroupStore::saveRecords(const Family<Record>&, const std::vector<Record>&) const

VITRELLE_RECORDED(textWidgetData);
VITRELLE_RECORDED(musicWidgetData);
VITRELLE_RECORDED(imageWidgetData);
VITRELLE_RECORDED(batteryWidgetData);
VITRELLE_RECORDED(weatherWidgetData);
VITRELLE_RECORDED(clockWidgetData);

} // namespace vitrelle
