// A widget family as the shared screens know it: how its styles look, what its forms edit, and what
// else its screens do differently. Each family stands in a folder of its own under core/families.
#pragma once

#include "core/drawing/View.h"
#include "core/lifecycle/FamilyTable.h"
#include "core/lifecycle/Form.h"
#include "core/lifecycle/Gate.h"
#include "core/lifecycle/StyleDraft.h"
#include "core/platform/Platform.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle {

/// Where a face is shown, since some are laid out by that. A widget is the small one, a wide widget
/// any that is wider.
enum class FaceUse { setup, second, gallery, assign, preview, widget, wideWidget };

enum class EditorStep { setup, second };

/// A square at the top of a page of the preview, where a small widget lies.
PointRect topBox(const Platform& platform, const PointSize& page, double side);

/// One of the kinds of style that a family lets choose before its form.
struct StyleKind {
  std::string_view pickedStyle; ///< as the screens pass it on
  std::string_view caption;
  View (*sample)(const Platform& platform);
};

/// A line at the foot of a page that leads out of the application.
struct FootLink {
  std::string_view words = {};
  void (*press)(const Platform& platform) = nullptr;
};

class StyleFamily {
 public:
  explicit StyleFamily(std::string_view name)
      : words_(familyDescription(name)), store_(familyStore(name)) {}
  StyleFamily(const StyleFamily&) = delete;
  StyleFamily& operator=(const StyleFamily&) = delete;
  virtual ~StyleFamily() = default;

  const FamilyDescription& words() const { return words_; }
  const FamilyStore& store() const { return store_; }

  /// The look of a record of this family. Asked anew at each drawing: it may show the time.
  virtual View face(const Platform& platform, const StyleRecord& record, FaceUse use) const = 0;
  /// The look of what a form edits.
  virtual View draftFace(const Platform& platform, const StyleDraft& draft, FaceUse use) const {
    return face(platform, draft.record, use);
  }
  /// Brings the family's faces to life for as long as the subscription is held: starts what they
  /// wait for, and calls when they look different though no record has changed.
  virtual Subscription live(const Platform&, std::function<void()> /*changed*/) const { return {}; }
  /// Where on a page of the preview, as large as told, the face lies.
  virtual PointRect previewBox(const Platform& platform, const PointSize& page) const;

  /// What is passed before the entry; null where nothing is.
  virtual std::unique_ptr<Gate> gate(const Platform&) const { return nullptr; }
  /// Chosen between the entry and the form, if there are any.
  virtual std::span<const StyleKind> kinds() const { return {}; }
  /// Below them.
  virtual std::optional<FootLink> kindsFoot() const { return std::nullopt; }
  /// Which of them a record is of.
  virtual std::string kindOf(const StyleRecord&) const { return {}; }

  /// What a new style begins with.
  virtual StyleDraft newDraft(std::string_view kind) const {
    return {.record = store_.newRecord(0), .kind = std::string(kind)};
  }
  /// What the setup and the linking screen take of a stored record.
  virtual StyleDraft draftOf(const StyleRecord& record) const {
    return {.record = record, .kind = kindOf(record)};
  }
  /// What the second step begins with, over what is stored by then.
  virtual StyleDraft secondDraft(const Platform&, const StyleRecord& record, bool /*isNew*/) const {
    return {.record = record, .kind = kindOf(record)};
  }
  /// Told each time the gallery has read its records.
  virtual void galleryLoaded(const Platform&, std::size_t /*count*/) const {}

  /// Whether the step takes in a picture that is pasted or dropped.
  virtual bool takesPictures(EditorStep) const { return false; }
  /// What the draft holds of such a picture.
  virtual Image takenIn(const Platform&, const Image& picture) const { return picture; }
  virtual std::vector<FormRow> rows(EditorStep step) const = 0;
  /// Writes what the step edits into a record, and nothing else.
  virtual void copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const = 0;
  /// Stores what a draft holds beside its record, before that is stored. A failure ends the saving
  /// with nothing changed.
  virtual Status keep(const Platform&, const StyleDraft&, RecordIndex) const { return success(); }
  /// The picture that was stored with the record of the index, for a step that edits it. One that
  /// is gone is a fatal error.
  virtual std::optional<Image> kept(const Platform&, RecordIndex) const { return std::nullopt; }

 private:
  const FamilyDescription& words_;
  const FamilyStore& store_;
};

} // namespace vitrelle
