#include "ui/lifecycle/AssignScreen.h"

#include <algorithm>
#include <utility>

namespace vitrelle::ui {

AssignScreen::AssignScreen(const Platform& platform, std::shared_ptr<StyleAssign> screen)
    : StyleScreen(screen->family(), "assign"),
      platform_(platform),
      screen_(std::move(screen)),
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
    numbers += option.style ? static_cast<int>(option.style->value) : -1;
  return numbers;
}

int AssignScreen::picked() const {
  const std::vector<AssignOption> options = screen_->options();
  const auto found = std::ranges::find(options, screen_->vitrelleConfig(), &AssignOption::style);
  return found == options.end() ? -1 : static_cast<int>(found - options.begin());
}

void AssignScreen::pick(int option) {
  const std::vector<AssignOption> options = screen_->options();
  if (option >= 0 && static_cast<std::size_t>(option) < options.size())
    screen_->pick(options[static_cast<std::size_t>(option)].style);
}

} // namespace vitrelle::ui
