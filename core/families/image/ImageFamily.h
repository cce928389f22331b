// The Image family: a picture that is cut out of a photo. It comes by the clipboard and lies in a
// file beside the records, which belongs to one record by its number.
#pragma once

#include "core/lifecycle/StyleFamily.h"

namespace vitrelle {

class ImageFamily final : public StyleFamily {
 public:
  ImageFamily() : StyleFamily(families::image.name) {}

  /// With the stored picture of the record; nothing without one.
  View face(const Platform& platform, const StyleRecord& record, FaceUse use) const override;
  /// The form says so while no picture is set.
  View draftFace(const Platform& platform, const StyleDraft& draft, FaceUse use) const override;
  /// A medium widget at the size of the page.
  PointRect previewBox(const Platform& platform, const PointSize& page) const override;
  void galleryLoaded(const Platform& platform, std::size_t count) const override;

  bool takesPictures(EditorStep step) const override { return step == EditorStep::setup; }
  Image takenIn(const Platform& platform, const Image& picture) const override;
  std::vector<FormRow> rows(EditorStep step) const override;
  void copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const override;
  Status keep(const Platform& platform, const StyleDraft& draft, RecordIndex index) const override;
  std::optional<Image> kept(const Platform& platform, RecordIndex index) const override;
};

} // namespace vitrelle
