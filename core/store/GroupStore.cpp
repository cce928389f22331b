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
  const auto stored = read(key);
  return stored ? *stored : std::nullopt;
}

template <class T>
Result<std::optional<T>> GroupStore::read(const Key<T>& key) const {
  const auto stored = platform_->defaults.value(key.suite, key.name);
  if (!stored) return stored.failure();
  return decoded<T>(*stored);
}

Status GroupStore::check(Suite suite) const {
  const auto keys = platform_->defaults.keys(suite);
  return keys ? success() : Status(keys.failure());
}

template <class T>
bool GroupStore::set(const Key<T>& key, const T& value) const {
  return platform_->defaults.set(key.suite, key.name, value).ok();
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
  const auto records = readRecords(family);
  return records ? *records : std::vector<Record>();
}

template <class Record>
Result<std::vector<Record>> GroupStore::readRecords(const Family<Record>& family) const {
  const auto json = read(family.records);
  if (!json) return json.failure();
  if (!*json) return std::vector<Record>();
  auto records = decodeRecords<Record>(**json).value_or(std::vector<Record>());
  if (records.size() > mostRecords) {
    return Failure{family.records.name, "it has more records than the " +
                                            std::to_string(mostRecords) + " that are read"};
  }
  return records;
}

template <class Record>
bool GroupStore::saveRecords(const Family<Record>& family,
                             const std::vector<Record>& records) const {
  const Result<Data> json = encodeRecords(records);
  if (!json) {
    const Failure& error = json.failure();
    platform_->debugConsole.print("Unable to Encode Data (" + error.what + ": " + error.why + ")");
    return false;
  }
  const bool isStored = set(family.records, *json);
  platform_->widgetCenter.reloadAllTimelines();
  return isStored;
}

#define VITRELLE_STORED(T)                                                                         \
  template std::optional<T> GroupStore::value(const Key<T>&) const;                                \
  template Result<std::optional<T>> GroupStore::read(const Key<T>&) const;                         \
  template bool GroupStore::set(const Key<T>&, const T&) const;                                    \
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
  template Result<std::vector<Record>> GroupStore::readRecords(const Family<Record>&) const;       \
  template bool GroupStore::saveRecords(const Family<Record>&, const std::vector<Record>&) const

VITRELLE_RECORDED(textWidgetData);
VITRELLE_RECORDED(musicWidgetData);
VITRELLE_RECORDED(imageWidgetData);
VITRELLE_RECORDED(batteryWidgetData);
VITRELLE_RECORDED(weatherWidgetData);
VITRELLE_RECORDED(clockWidgetData);

} // namespace vitrelle
