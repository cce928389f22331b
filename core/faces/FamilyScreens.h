// Makes the screens of a family by its name, for those who draw screens without knowing records.
#pragma once

#include "core/lifecycle/StyleAssign.h"
#include "core/lifecycle/StyleColours.h"
#include "core/lifecycle/StyleEntry.h"
#include "core/lifecycle/StyleGallery.h"
#include "core/lifecycle/StylePreview.h"
#include "core/lifecycle/StyleSetup.h"

#include <memory>
#include <string_view>

namespace vitrelle {

/// The platform that is given to each must outlive the screen.
class FamilyScreens {
 public:
  FamilyScreens() = default;
  FamilyScreens(const FamilyScreens&) = delete;
  FamilyScreens& operator=(const FamilyScreens&) = delete;
  virtual ~FamilyScreens() = default;

  virtual const FamilyDescription& words() const = 0;
  /// Whether its styles can be made and changed; the other screens are there for all families.
  virtual bool hasEditor() const = 0;
  virtual std::unique_ptr<StyleEntry> entry(const Platform& platform) const = 0;
  /// The first step of the editor, which leads to the second.
  virtual std::unique_ptr<StyleFirstStep> setup(const Platform& platform,
                                                const EditorTask& task) const = 0;
  virtual std::unique_ptr<StyleGallery> gallery(const Platform& platform) const = 0;
  virtual std::unique_ptr<StyleAssign> assign(const Platform& platform,
                                              std::int64_t configNumber) const = 0;
  virtual std::unique_ptr<StylePreview> preview(const Platform& platform) const = 0;
};

/// A name that no family has is a fatal error.
const FamilyScreens& familyScreens(std::string_view family);

} // namespace vitrelle
