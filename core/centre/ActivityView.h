// The platform's share sheet: what it is asked to share. How it does that is the host's business.
#pragma once

#include "core/platform/Image.h"

#include <string>
#include <vector>

namespace vitrelle {

struct ActivityItem {
  Image image;
  std::string fileName; ///< by which it is known where it is stored
  bool operator==(const ActivityItem&) const = default;
};

struct ActivityView {
  std::vector<ActivityItem> activityItems;
  bool operator==(const ActivityView&) const = default;
};

} // namespace vitrelle
