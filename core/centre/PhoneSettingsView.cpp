#include "core/centre/PhoneSettingsView.h"

#include <algorithm>
#include <span>
#include <utility>

namespace vitrelle {

namespace {

/// Letters of other scripts are taken for what they are, though no name has any.
constexpr bool isLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || (c & 0x80) != 0;
}

constexpr char inLowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Runs of letters and digits, in lower case.
std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words;
  bool within = false;
  for (const char c : text) {
    const char lower = inLowerCase(c);
    const bool belongs = isLetterOrDigit(lower);
    if (belongs && !within) words.emplace_back();
    if (belongs) words.back() += lower;
    within = belongs;
  }
  return words;
}

std::string joined(std::span<const std::string> words) {
  std::string text;
  for (const std::string& word : words)
    text += word;
  return text;
}

bool hasAll(std::span<const std::string> name, std::span<const std::string> words) {
  const bool beginAll = std::ranges::all_of(words, [&](const std::string& word) {
    return std::ranges::any_of(name,
                               [&](const std::string& each) { return each.starts_with(word); });
  });
  for (std::size_t i = 0; !beginAll && i < name.size(); ++i) {
    if (joined(name.subspan(i)).starts_with(joined(words))) return true;
  }
  return beginAll;
}

/// A phone that can't zoom has one setting only, whatever the tables tell of another.
MeasuredDisplays displaysOf(const PhoneModel* model, std::string_view name, bool os18) {
  using enum MeasuredDisplays;
  const MeasuredDisplays measured = measuredDisplays(name, os18);
  if (model == nullptr || canZoom(*model)) return measured;
  return measured == both || measured == standard ? standard : none;
}

} // namespace

bool hasWords(std::string_view name, std::string_view words) {
  return hasAll(wordsOf(name), wordsOf(words));
}

PhoneSettingsView::PhoneSettingsView(const Platform& platform)
    : platform_(platform), models_(platform.phoneBook.models()) {
  choices_ = platform.phoneBook.watch([this](const PhoneChoice& choice) {
    take(choice);
    changed();
  });
  take(platform.phoneBook.current());
}

std::string PhoneSettingsView::name() const {
  return phoneName(platform_, choice_.identifier);
}

MeasuredDisplays PhoneSettingsView::measured() const {
  return displaysOf(findModel(models_, choice_.identifier), name(), isOs18());
}

bool PhoneSettingsView::hasZoom() const {
  const PhoneModel* model = findModel(models_, choice_.identifier);
  return choice_.zoomed || (model != nullptr && canZoom(*model));
}

void PhoneSettingsView::search(std::string words) {
  words_ = std::move(words);
  list();
  changed();
}

void PhoneSettingsView::pick(std::size_t index) {
  if (index >= phones_.size()) return;
  const PhoneLine line = phones_[index]; // the list is made anew by what follows
  PhoneChoice choice = choice_;
  if (!line.chosen) choice.identifier = line.identifier;
  choice.os = suitedOs(line.name, choice.os);
  if (isOs18() != vitrelle::isOs18(choice.os))
    choice.os = vitrelle::isOs18(choice.os) ? from18_ : before18_;
  const PhoneModel* model = findModel(models_, choice.identifier);
  choice.zoomed = choice.zoomed && model != nullptr && canZoom(*model);
  words_.clear();
  save(choice);
}

void PhoneSettingsView::setOs18(bool os18) {
  PhoneChoice choice = choice_;
  choice.os = os18 ? from18_ : before18_;
  save(choice);
}

void PhoneSettingsView::setZoomed(bool zoomed) {
  PhoneChoice choice = choice_;
  choice.zoomed = zoomed;
  save(choice);
}

void PhoneSettingsView::setAppearance(AppearanceChoice appearance) {
  PhoneChoice choice = choice_;
  choice.appearance = appearance;
  save(choice);
}

void PhoneSettingsView::take(const PhoneChoice& choice) {
  choice_ = choice;
  (isOs18() ? from18_ : before18_) = choice.os;
  list();
}

void PhoneSettingsView::list() {
  const auto words = wordsOf(words_);
  const auto line = [&](const PhoneModel* model, const std::string& name,
                        const std::string& identifier, bool chosen) {
    const bool os18 = vitrelle::isOs18(suitedOs(name, choice_.os));
    return PhoneLine{.name = name,
                     .identifier = identifier,
                     .measured = displaysOf(model, name, os18),
                     .os18 = os18,
                     .chosen = chosen};
  };
  phones_.clear();
  const PhoneModel* chosen = findModel(models_, choice_.identifier);
  if (chosen == nullptr && words.empty())
    phones_.push_back(line(nullptr, name(), choice_.identifier, true));
  for (const PhoneModel& model : models_) {
    if (hasAll(wordsOf(model.name), words))
      phones_.push_back(line(&model, model.name, model.identifiers.front(), &model == chosen));
  }
  if (!words.empty()) {
    std::ranges::stable_sort(phones_, {},
                             [](const PhoneLine& each) { return wordsOf(each.name).size(); });
  }
}

void PhoneSettingsView::save(const PhoneChoice& choice) {
  const Status kept = choosePhone(platform_, choice);
  trouble_ = kept ? std::nullopt : std::optional(kept.failure());
  take(choice); // also where nothing but the trouble is new
  changed();
}

} // namespace vitrelle
