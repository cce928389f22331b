// The entry screen of a family: leads to a new style, the gallery and the preview.
#pragma once

#include "core/lifecycle/Alert.h"
#include "core/lifecycle/StyleFlow.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/platform/Screen.h"

#include <memory>
#include <optional>

namespace vitrelle {

class StyleEntry final : public Screen {
 public:
  /// The platform and the family must outlive it.
  StyleEntry(const Platform& platform, const StyleFamily& family)
      : platform_(platform), family_(family), storedDataArray_(platform, family.store()) {}

  /// Also when a sheet over it is gone, so that the limit holds for what was made there.
  void appear();
  /// Opens the way to a new style, or says why not: a family has a most. Nothing in a family
  /// whose editor is still to be made.
  void tapCreate();
  void tapGallery();
  /// Opens the preview, or says that there is nothing to see.
  void tapPreview();
  void dismissSheet();
  void dismissAlert();

  const StyleFamily& family() const { return family_; }
  bool showCreate() const { return shows(FlowStart::create); }
  bool showGallery() const { return shows(FlowStart::gallery); }
  bool showPreview() const { return shows(FlowStart::preview); }
  /// What the sheet holds, while one is shown. Shared with whoever still draws one that leaves.
  const std::shared_ptr<StyleFlow>& flow() const { return flow_; }
  std::optional<Alert> alert() const;

 private:
  /// Whether the styles are known; only felt if not. Neither a limit nor an absence shows without.
  bool canRead();
  bool shows(FlowStart start) const { return flow_ && start_ == start; }
  /// Opens the sheet, or closes it where it is open.
  void toggle(FlowStart start);

  const Platform& platform_;
  const StyleFamily& family_;
  StyleRecords storedDataArray_;
  std::shared_ptr<StyleFlow> flow_;
  FlowStart start_ = FlowStart::create;
  bool showingOverAlert_ = false;
  bool showingNoConfigAlert_ = false;
};

} // namespace vitrelle
