#include "ui/app/RootScreen.h"

#include <algorithm>

namespace vitrelle::ui {

namespace {

/// None is configured: there is no advertising kit here to ask for one.
constexpr const char* adUnitID = "";

ScrollingHStackModifier pagerFor(const Platform& platform, const ModernContentView& screen) {
  return {screen.pageCount(), screen.pageWidth(), ModernContentView::pageSpacing,
          platform.device.screenBounds().width};
}

} // namespace

RootScreen::RootScreen(const Platform& platform)
    : platform_(platform),
      screen_(platform),
      pager_(pagerFor(platform, screen_)),
      view_(screen_.onChange([this] { update(); })),
      phones_(platform.phoneBook.watch([this](const PhoneChoice&) {
        screen_.phoneChanged();
        layPagesOut();
      })) {}

void RootScreen::appear(bool launches) {
  launches ? screen_.appear() : screen_.appearBeneath();
  BannerAd(platform_, adUnitID).makeView();
  // Another process that makes or changes a style ends with a reload of the widgets.
  reloads_ = platform_.widgetCenter.watchReloads([this] { screen_.reloadConfigs(); });
}

void RootScreen::drag(qreal translation) {
  dragging_ = true;
  pager_.drag(translation);
  Q_EMIT pagerMoved();
}

void RootScreen::endDrag(qreal translation) {
  dragging_ = false;
  pager_.endDrag(translation);
  Q_EMIT pagerMoved();
}

void RootScreen::showPage(int page) {
  pager_.showPage(page);
  Q_EMIT pagerMoved();
}

void RootScreen::showStyle(int styleNumber) {
  const auto& styles = screen_.vitrelleConfigs();
  const auto found =
      std::ranges::find(styles, StyleNumber{styleNumber}, &VitrelleConfigData::configNumber);
  if (found != styles.end()) showPage(static_cast<int>(found - styles.begin()));
}

void RootScreen::update() {
  styles_.refresh();
  if (screen_.pageCount() != pager_.items()) layPagesOut();
  Q_EMIT changed();
}

void RootScreen::layPagesOut() {
  const std::int64_t page = pager_.page();
  pager_ = pagerFor(platform_, screen_);
  pager_.showPage(page);
  Q_EMIT pagerMoved();
}

} // namespace vitrelle::ui
