#include "host/desktop/EndInTime.h"

#include <cstdlib>
#include <thread>

namespace vitrelle::host {

void endInTime(std::chrono::milliseconds time, int status) {
  std::thread([time, status] {
    std::this_thread::sleep_for(time);
    std::_Exit(status);
  }).detach();
}

} // namespace vitrelle::host
