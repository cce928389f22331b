#include "core/lifecycle/StyleFlow.h"

#include <string>
#include <utility>

namespace vitrelle {

namespace {

constexpr RecordIndex firstStyle{0};

std::string firstKind(const StyleFamily& family) {
  return family.kinds().empty() ? std::string() : std::string(family.kinds().front().pickedStyle);
}

FlowPage firstPage(const Platform& platform, const StyleFamily& family, FlowStart start) {
  switch (start) {
  case FlowStart::create:
    if (!family.kinds().empty()) return std::make_shared<StyleKinds>(platform, family);
    break;
  case FlowStart::gallery:
    return std::make_shared<StyleGallery>(platform, family);
  case FlowStart::preview:
    return std::make_shared<StylePreview>(platform, family);
  case FlowStart::assign:
    return std::make_shared<StyleAssign>(platform, family, firstStyle);
  case FlowStart::second:
    return std::make_shared<StyleSecond>(
        platform, family, EditorTask{.mode = EditorMode::edit, .configNumber = firstStyle});
  case FlowStart::setup:
    break;
  }
  return std::make_shared<StyleSetup>(platform, family, EditorTask{.kind = firstKind(family)});
}

} // namespace

StyleFlow::StyleFlow(const Platform& platform, const StyleFamily& family, FlowStart start,
                     std::function<void()> closed)
    : platform_(platform),
      family_(family),
      closed_(std::move(closed)),
      pages_{firstPage(platform, family, start)} {}

template <class Page>
Page* StyleFlow::shown() const {
  const auto* page = std::get_if<std::shared_ptr<Page>>(&pages_.back());
  return page == nullptr ? nullptr : page->get();
}

void StyleFlow::push(FlowPage page) {
  pages_.push_back(std::move(page));
  changed();
}

bool StyleFlow::canGoBack() const {
  const bool isNew =
      shown<StyleSecond>() != nullptr && shown<StyleSecond>()->task().mode == EditorMode::create;
  return pages_.size() > 1 && !isNew;
}

void StyleFlow::pickKind(const StyleKind& kind) {
  if (shown<StyleKinds>() == nullptr) return;
  push(std::make_shared<StyleSetup>(platform_, family_,
                                    EditorTask{.kind = std::string(kind.pickedStyle)}));
}

Saved StyleFlow::saveSetup() {
  StyleSetup* setup = shown<StyleSetup>();
  if (setup == nullptr) return Saved::refused;
  const Saved saved = setup->save();
  if (saved != Saved::refused) push(setup->next());
  return saved;
}

Saved StyleFlow::saveSecond() {
  StyleSecond* second = shown<StyleSecond>();
  if (second == nullptr) return Saved::refused;
  const Saved saved = second->save();
  if (saved != Saved::refused) leaveEditor();
  return saved;
}

void StyleFlow::edit(RecordIndex index) {
  StyleGallery* gallery = shown<StyleGallery>();
  if (gallery == nullptr) return;
  gallery->tapEdit(index);
  push(std::make_shared<StyleSetup>(
      platform_, family_,
      EditorTask{.mode = EditorMode::edit, .configNumber = gallery->needToEdit()}));
}

void StyleFlow::assign(RecordIndex index) {
  StyleGallery* gallery = shown<StyleGallery>();
  if (gallery == nullptr) return;
  gallery->tapAssign(index);
  assignSheet_ = std::make_shared<StyleAssign>(platform_, family_, gallery->needToEdit());
  changed();
}

Saved StyleFlow::saveLink() {
  StyleAssign* assign = assignSheet_ ? assignSheet_.get() : shown<StyleAssign>();
  if (assign == nullptr) return Saved::refused;
  const Saved saved = assign->save();
  if (saved != Saved::refused) dismissAssign();
  return saved;
}

void StyleFlow::dismissAssign() {
  if (!assignSheet_) {
    if (shown<StyleAssign>() != nullptr) close();
    return;
  }
  assignSheet_.reset();
  if (StyleGallery* gallery = shown<StyleGallery>()) gallery->dismissAssign();
  changed();
}

void StyleFlow::back() {
  if (!canGoBack()) {
    close();
    return;
  }
  pages_.pop_back();
  if (StyleGallery* gallery = shown<StyleGallery>()) gallery->dismissEdit();
  changed();
}

void StyleFlow::leaveEditor() {
  if (std::holds_alternative<std::shared_ptr<StyleGallery>>(pages_.front())) {
    pages_.resize(1, pages_.front());
    shown<StyleGallery>()->dismissEdit();
    changed();
  } else {
    close();
  }
}

void StyleFlow::close() {
  if (const auto closed = std::exchange(closed_, {})) closed();
}

} // namespace vitrelle
