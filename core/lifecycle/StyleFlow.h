// What a sheet of a family holds: the pages that follow one another on it, and where they lead.
#pragma once

#include "core/lifecycle/StyleAssign.h"
#include "core/lifecycle/StyleGallery.h"
#include "core/lifecycle/StyleKinds.h"
#include "core/lifecycle/StylePreview.h"
#include "core/lifecycle/StyleSecond.h"
#include "core/lifecycle/StyleSetup.h"

#include <functional>
#include <memory>
#include <variant>
#include <vector>

namespace vitrelle {

/// Shared with whoever still draws a page that is left.
using FlowPage = std::variant<std::shared_ptr<StyleKinds>, std::shared_ptr<StyleSetup>,
                              std::shared_ptr<StyleSecond>, std::shared_ptr<StyleGallery>,
                              std::shared_ptr<StyleAssign>, std::shared_ptr<StylePreview>>;

/// What a flow begins with. The entry leads to the first three; the others are of the first style,
/// as if they had been come to from the gallery, but for the setup, which is of a new one.
enum class FlowStart { create, gallery, preview, setup, second, assign };

class StyleFlow final : public Screen {
 public:
  /// `closed` is called once, when the flow is at its end. The platform and the family must outlive
  /// it.
  StyleFlow(const Platform& platform, const StyleFamily& family, FlowStart start,
            std::function<void()> closed);

  /// Never empty; the last one is shown.
  const std::vector<FlowPage>& pages() const { return pages_; }
  /// The linking screen over the gallery, while it is there.
  const std::shared_ptr<StyleAssign>& assignSheet() const { return assignSheet_; }
  const StyleFamily& family() const { return family_; }
  /// Whether the shown page has a way back. A new style is made already when its second step comes;
  /// back in the form, the button would make another.
  bool canGoBack() const;

  // What the shown page leads to. Each does nothing where another kind of page is shown.

  /// From the kinds to the form of a new style.
  void pickKind(const StyleKind& kind);
  /// Saves the first step and goes on to the second, unless the save was refused.
  Saved saveSetup();
  /// Saves the second step, and with it ends the editor.
  Saved saveSecond();
  /// From a tile's menu in the gallery.
  void edit(RecordIndex index);
  void assign(RecordIndex index);
  /// Saves the link that is picked, and leaves the linking screen unless that was refused.
  Saved saveLink();
  void dismissAssign();
  /// Back to the page before, or out.
  void back();
  void close();

 private:
  template <class Page>
  Page* shown() const;
  void push(FlowPage page);
  /// Back on the gallery, from however far, or out where there is none.
  void leaveEditor();

  const Platform& platform_;
  const StyleFamily& family_;
  std::function<void()> closed_;
  std::vector<FlowPage> pages_;
  std::shared_ptr<StyleAssign> assignSheet_;
};

} // namespace vitrelle
