// The root screen: decides at launch what kind of run this is, lists the wallpaper styles as cards
// and leads to all the rest.
#pragma once

#include "core/app/ScrollingHStackModifier.h"
#include "core/app/VitrelleConfigData.h"
#include "core/platform/Platform.h"
#include "core/platform/Screen.h"
#include "core/slicing/ActiveSheet.h"
#include "core/slicing/WidgetLocation.h"
#include "core/store/StoredValue.h"

#include <optional>
#include <string_view>
#include <vector>

namespace vitrelle {

/// Whether the application of this version kept one style without a number. The application of
/// today takes it over at its first start, and begins to count anew.
bool isOfFirstGeneration(std::string_view version);

class ModernContentView final : public Screen {
 public:
  explicit ModernContentView(const Platform& platform);

  static constexpr std::string_view title = "Vitrelle";
  static constexpr std::string_view createTitle = "Create a new Vitrelle Style";
  static constexpr std::string_view editTitle = "Edit";
  static constexpr std::string_view alertTitle = "Cannot open Widget Centre";
  static constexpr std::string_view alertMessage = "Please Create a Vitrelle Style";
  /// The most styles that can be made.
  static constexpr std::int64_t maximumStyles = 12;
  static constexpr double pageSpacing = 21; ///< points

  /// The root appears: one pass of the launch decision. A missing version of the application is a
  /// fatal error where it is needed.
  void appear();
  /// The root stands beneath another screen that the program was started with. What kind of run
  /// this is waits for a start that shows the root; where that would begin to count anew, nothing
  /// is offered that would be lost then.
  void appearBeneath();
  /// Another phone is stood for. Where the launch stopped at one without measurements, the version
  /// that it would have stored is stored now, or the next start would begin to count styles anew.
  void phoneChanged();
  /// The pager appears, which the system may do before or after.
  void contentAppear() { reloadConfigs(); }

  /// Lists the styles whose two screenshots are both there. Loads, but decodes no picture.
  void reloadConfigs();
  /// A tap on a card's tick. Only felt where the choice could not be stored.
  void selectConfig(StyleNumber number);
  /// A tap on the button of the Widget Centre: whether it opens; if not, the alert is up.
  bool openWidgetCentre();

  void dismissAlert();
  void dismissOnboarding();
  void dismissUpdateFromOne();

  const std::vector<VitrelleConfigData>& vitrelleConfigs() const { return vitrelleConfigs_; }
  /// Whether the card is of the style in use. Without a stored choice none is.
  bool isSelected(StyleNumber number) const { return selectedConfig_.get() == number.value; }
  std::int64_t amountOfConfigs() const { return configAmounts_.getOrDefault(); }
  bool showsCards() const { return amountOfConfigs() != 0; }
  bool showsCreateCard() const;
  /// Whether both stores can be read, and no launch waits. If not, nothing is offered that would
  /// write to them.
  bool canBeChanged() const;
  bool launchWaits() const { return launchWaits_; }
  /// Pages of the pager, which may be more than there are cards: a style without its files counts.
  std::int64_t pageCount() const;
  double pageWidth() const; ///< points

  bool showUpdateFromOne() const { return showUpdateFromOne_; }
  bool showOnboarding() const { return showOnboarding_; }
  bool showingAlert() const { return showingAlert_; }
  /// Set at launch; nothing presents them.
  const std::optional<ActiveAlert>& activeAlert() const { return activeAlert_; }
  const std::optional<ActivePopoverContent>& activePopover() const { return activePopover_; }
  bool popoverIsPresented() const { return popoverIsPresented_; }

 private:
  void followStores();
  bool canLaunch(const Result<HomeLock>& lock) const;
  void decideKindOfRun();
  std::string currentVersion() const;
  void resetCounts() const;
  void moveLegacyImages() const;

  const Platform& platform_;
  StoredValue<std::string> lastUsedAppVersion_;
  StoredValue<std::int64_t> configAmounts_;
  StoredValue<std::int64_t> selectedConfig_;
  std::vector<VitrelleConfigData> vitrelleConfigs_;
  std::optional<ActiveAlert> activeAlert_;
  std::optional<ActivePopoverContent> activePopover_;
  bool popoverIsPresented_ = false;
  bool launchWaits_ = false;
  bool isLaunchDelayed_ = false; ///< until the stores tell what kind of run this is
  bool isListOld_ = false;       ///< the styles could not be listed anew
  bool showUpdateFromOne_ = false;
  bool showOnboarding_ = false;
  bool showingAlert_ = false;
  Subscription listAfterMove_;
  std::vector<Subscription> bindings_; ///< last, for they call this screen
};

} // namespace vitrelle
