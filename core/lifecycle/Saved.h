// What became of a save on one of the shared screens.
#pragma once

namespace vitrelle {

enum class Saved {
  stored,
  notStored, ///< the flow goes on as if it were; a later step tries once more
  refused,   ///< nothing was changed, and the screen stays
};

} // namespace vitrelle
