#include "ui/lifecycle/FlowScreen.h"

#include "ui/lifecycle/EditorScreen.h"
#include "ui/lifecycle/GalleryScreen.h"
#include "ui/lifecycle/KindsScreen.h"
#include "ui/lifecycle/PreviewScreen.h"

#include <utility>

namespace vitrelle::ui {

namespace {

struct MakeView {
  const Platform& platform;

  StyleScreen* operator()(const std::shared_ptr<StyleKinds>& screen) const {
    return new KindsScreen(screen);
  }
  StyleScreen* operator()(const std::shared_ptr<StyleSetup>& screen) const {
    return new EditorScreen(platform, screen);
  }
  StyleScreen* operator()(const std::shared_ptr<StyleSecond>& screen) const {
    return new EditorScreen(platform, screen);
  }
  StyleScreen* operator()(const std::shared_ptr<StyleGallery>& screen) const {
    return new GalleryScreen(screen);
  }
  StyleScreen* operator()(const std::shared_ptr<StyleAssign>& screen) const {
    return new AssignScreen(platform, screen);
  }
  StyleScreen* operator()(const std::shared_ptr<StylePreview>& screen) const {
    return new PreviewScreen(screen);
  }
};

const void* address(const FlowPage& page) {
  return std::visit([](const auto& screen) { return static_cast<const void*>(screen.get()); },
                    page);
}

} // namespace

FlowScreen::FlowScreen(const Platform& platform, std::shared_ptr<StyleFlow> flow)
    : platform_(platform), flow_(std::move(flow)), view_(flow_->onChange([this] { follow(); })) {
  follow();
}

FlowScreen::~FlowScreen() {
  for (const Shown& shown : pages_)
    delete shown.view;
  delete assignSheet_;
}

QVariantList FlowScreen::pages() const {
  QVariantList views;
  for (const Shown& shown : pages_)
    views += QVariant::fromValue<QObject*>(shown.view);
  return views;
}

void FlowScreen::pickKind(int index) {
  const auto kinds = flow_->family().kinds();
  if (index >= 0 && std::cmp_less(index, kinds.size()))
    flow_->pickKind(kinds[static_cast<std::size_t>(index)]);
}

void FlowScreen::follow() {
  const std::vector<FlowPage>& now = flow_->pages();
  std::size_t same = 0;
  while (same < pages_.size() && same < now.size() && pages_[same].screen == address(now[same]))
    ++same;
  for (std::size_t i = same; i < pages_.size(); ++i)
    leaveToQml(pages_[i].view);
  pages_.resize(same);
  for (std::size_t i = same; i < now.size(); ++i)
    pages_.push_back({address(now[i]), std::visit(MakeView{platform_}, now[i])});

  const std::shared_ptr<StyleAssign>& sheet = flow_->assignSheet();
  if (assignSheet_ != nullptr && !sheet) leaveToQml(std::exchange(assignSheet_, nullptr));
  if (assignSheet_ == nullptr && sheet) assignSheet_ = new AssignScreen(platform_, sheet);
  Q_EMIT changed();
}

} // namespace vitrelle::ui
