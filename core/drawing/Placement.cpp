#include "core/drawing/Placement.h"

namespace vitrelle {

double placed(Place place, double room, double taken) {
  switch (place) {
  case Place::start:
    return 0;
  case Place::centre:
    return (room - taken) / 2;
  case Place::end:
    return room - taken;
  }
  return 0;
}

PointRect aligned(const Alignment& alignment, const PointRect& box, const PointSize& own) {
  return {box.x + placed(alignment.horizontal, box.width, own.width),
          box.y + placed(alignment.vertical, box.height, own.height), own.width, own.height};
}

} // namespace vitrelle
