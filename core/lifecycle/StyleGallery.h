// The gallery of a family: its styles in the order of their making, each over the wallpaper that it
// is linked to.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/StyleEditor.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/platform/Screen.h"
#include "core/store/StoredValue.h"

#include <memory>
#include <optional>
#include <vector>

namespace vitrelle {

struct GalleryTile {
  std::optional<SliceName> backdrop;
  DisplayList face;
  bool current = false;               ///< the family's current style
  std::optional<std::int64_t> linked; ///< the wallpaper style that it is linked to
  bool operator==(const GalleryTile&) const = default;
};

class StyleGallery : public Screen {
 public:
  static constexpr int columns = 2;
  static constexpr double tickSize = 24;

  virtual ~StyleGallery() = default;

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
  void tapTick(std::size_t index);
  /// The items of a tile's menu: open the setup, or the assigning, of that style.
  void tapEdit(std::size_t index);
  void tapAssign(std::size_t index);
  void dismissEdit();
  void dismissAssign();

  const FamilyDescription& words() const { return words_; }
  bool loaded() const { return loaded_; }
  std::int64_t needToEdit() const { return needToEdit_; }
  bool showEdit() const { return showEdit_; }
  bool showAssignSheet() const { return showAssignSheet_; }

 protected:
  StyleGallery(const Platform& platform, const FamilyDescription& words,
               const Key<std::int64_t>& selected);

  const Platform& platform() const { return platform_; }
  virtual const StyleRecords& stored() const = 0;
  virtual void load() = 0;
  virtual DisplayList face(std::size_t index, const PointSize& frame) const = 0;

 private:
  std::optional<SliceName> backdrop(std::size_t index) const;
  std::optional<std::int64_t> linkedConfig(std::size_t index) const;

  const Platform& platform_;
  const FamilyDescription& words_;
  StoredValue<std::int64_t> selectedConfig_;
  std::optional<SliceName> img_;
  std::size_t amount_ = 0;
  bool loaded_ = false;
  std::int64_t needToEdit_ = 0;
  bool showEdit_ = false;
  bool showAssignSheet_ = false;
  std::vector<Subscription> bindings_; ///< last, for they call this screen
};

template <class Record>
class StyleGalleryOf final : public StyleGallery {
 public:
  /// The family must outlive it.
  StyleGalleryOf(const Platform& platform, const StyleFamily<Record>& family)
      : StyleGallery(platform, family.words(), family.store.selected),
        family_(family),
        storedDataArray_(platform, family.store) {}

 protected:
  const StyleRecords& stored() const override { return storedDataArray_; }
  void load() override { storedDataArray_.load(); }
  DisplayList face(std::size_t index, const PointSize& frame) const override {
    return layOut(family_.face(platform(), storedDataArray_.records[index], FaceUse::gallery),
                  frame, platform().drawing);
  }

 private:
  const StyleFamily<Record>& family_;
  FamilyRecords<Record> storedDataArray_;
};

} // namespace vitrelle
