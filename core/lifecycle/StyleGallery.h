// The gallery of a family: its styles in the order of their making, each over the wallpaper that it
// is linked to.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/StyleFamily.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/platform/Screen.h"
#include "core/store/StoredValue.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vitrelle {

struct GalleryTile {
  std::optional<SliceName> backdrop;
  DisplayList face;
  bool current = false;              ///< the family's current style
  std::optional<StyleNumber> linked; ///< the wallpaper style that it is linked to
  bool operator==(const GalleryTile&) const = default;
};

class StyleGallery final : public Screen {
 public:
  static constexpr int columns = 2;
  static constexpr double tickSize = 24;

  /// The platform and the family must outlive it.
  StyleGallery(const Platform& platform, const StyleFamily& family);

  /// Reads the slice and the records anew.
  void appear();
  /// What stands in the tiles' place, if something does.
  std::optional<std::string_view> placeholder() const;
  /// In the order of the records.
  std::vector<GalleryTile> tiles() const;
  std::size_t amount() const { return amount_; }
  double tileSide() const; ///< points
  double spacing() const;  ///< points, between columns and between rows

  /// The tick of a tile.
  void tapTick(RecordIndex index);
  /// The items of a tile's menu: open the setup, or the assigning, of that style.
  void tapEdit(RecordIndex index);
  void tapAssign(RecordIndex index);
  void dismissEdit();
  void dismissAssign();

  const StyleFamily& family() const { return family_; }
  bool loaded() const { return loaded_; }
  RecordIndex needToEdit() const { return needToEdit_; }
  bool showEdit() const { return showEdit_; }
  bool showAssignSheet() const { return showAssignSheet_; }

 private:
  const Platform& platform_;
  const StyleFamily& family_;
  StyleRecords storedDataArray_;
  StoredValue<std::int64_t> selectedConfig_;
  std::size_t amount_ = 0;
  bool loaded_ = false;
  RecordIndex needToEdit_;
  bool showEdit_ = false;
  bool showAssignSheet_ = false;
  std::vector<Subscription> bindings_; ///< last, for they call this screen
};

} // namespace vitrelle
