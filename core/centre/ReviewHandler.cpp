#include "core/centre/ReviewHandler.h"

#include "core/platform/FatalError.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace vitrelle {

namespace {

/// The requests that wait for their time, or did.
struct Scheduled {
  std::vector<Subscription> requests;
};

} // namespace

void ReviewHandler::check(const Platform& platform) {
  const GroupStore store(platform);
  const std::int64_t before = store.valueOrDefault(keys::appStartUpsCountKey);
  if (before == std::numeric_limits<std::int64_t>::max())
    fatalError("the widget centre appeared more often than can be counted");
  store.set(keys::appStartUpsCountKey, before + 1);
  const auto askDate = store.value(keys::appReviewAskDate);
  if (before + 1 < fewestAppearances) return;
  const double now = platform.dateTime.now().secondsSinceReferenceDate;
  if (askDate && now <= askDate->secondsSinceReferenceDate) return;
  const auto scheduled = platform.shared.get<Scheduled>([] { return new Scheduled; });
  scheduled->requests.push_back(
      platform.mainQueue.asyncAfter(requestDelaySeconds, [&platform] { request(platform); }));
}

void ReviewHandler::request(const Platform& platform) {
  const std::vector<Scene> scenes = platform.application.connectedScenes();
  const auto active =
      std::ranges::find(scenes, ActivationState::foregroundActive, &Scene::activationState);
  if (active != scenes.end() && active->isWindowScene)
    platform.reviewController.requestReview(*active);
  const double now = platform.dateTime.now().secondsSinceReferenceDate;
  GroupStore(platform).set(keys::appReviewAskDate, Date{now + pauseSeconds});
}

} // namespace vitrelle
