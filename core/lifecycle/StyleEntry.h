// The entry screen of a family: leads to a new style, the gallery and the preview.
#pragma once

#include "core/lifecycle/FamilyTable.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/platform/Screen.h"

#include <memory>
#include <optional>
#include <string_view>

namespace vitrelle {

struct Alert {
  std::string_view title;
  std::string_view message;
  bool operator==(const Alert&) const = default;
};

class StyleEntry final : public Screen {
 public:
  StyleEntry(const Platform& platform, const FamilyDescription& words,
             std::unique_ptr<StyleRecords> stored, bool hasEditor)
      : platform_(platform),
        words_(words),
        storedDataArray_(std::move(stored)),
        hasEditor_(hasEditor) {}

  /// Also when a sheet over it is gone, so that the limit holds for what was made there.
  void appear();
  /// Opens the setup of a new style, or says why not: a family has a most. Nothing in a family
  /// whose editor is still to be made.
  void tapCreate();
  void tapGallery();
  /// Opens the preview, or says that there is nothing to see.
  void tapPreview();
  void dismissSheet();
  void dismissAlert();

  const FamilyDescription& words() const { return words_; }
  bool hasEditor() const { return hasEditor_; }
  bool showCreate() const { return showCreate_; }
  bool showGallery() const { return showGallery_; }
  bool showPreview() const { return showPreview_; }
  std::optional<Alert> alert() const;

 private:
  /// Whether the styles are known; only felt if not. Neither a limit nor an absence shows without.
  bool canRead();

  const Platform& platform_;
  const FamilyDescription& words_;
  std::unique_ptr<StyleRecords> storedDataArray_;
  bool hasEditor_;
  bool showCreate_ = false;
  bool showGallery_ = false;
  bool showPreview_ = false;
  bool showingOverAlert_ = false;
  bool showingNoConfigAlert_ = false;
};

} // namespace vitrelle
