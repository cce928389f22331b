#include "ui/lifecycle/AssignScreen.h"

#include <algorithm>

namespace vitrelle::ui {

AssignScreen::AssignScreen(const Platform& platform, const FamilyScreens& family,
                           std::int64_t configNumber)
    : screen_(family.assign(platform, configNumber)),
      previewSize_(mediumPreviewSize(platform)),
      view_(screen_->onChange([this] { Q_EMIT changed(); })) {}

QStringList AssignScreen::options() const {
  QStringList labels;
  for (const AssignOption& option : screen_->options())
    labels += QString::fromStdString(option.label);
  return labels;
}

QList<int> AssignScreen::wallpapers() const {
  QList<int> numbers;
  for (const AssignOption& option : screen_->options())
    numbers += option.value == noLinkedConfig ? -1 : static_cast<int>(option.value);
  return numbers;
}

int AssignScreen::picked() const {
  const std::vector<AssignOption> options = screen_->options();
  const auto found = std::ranges::find(options, screen_->vitrelleConfig(), &AssignOption::value);
  return found == options.end() ? -1 : static_cast<int>(found - options.begin());
}

void AssignScreen::pick(int option) {
  const std::vector<AssignOption> options = screen_->options();
  if (option >= 0 && static_cast<std::size_t>(option) < options.size())
    screen_->pick(options[static_cast<std::size_t>(option)].value);
}

} // namespace vitrelle::ui
