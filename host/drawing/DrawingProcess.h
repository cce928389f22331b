// Drawing in a program that has no window.
#pragma once

#include "core/platform/Platform.h"

#include <memory>

class QGuiApplication;

namespace vitrelle::host {

/// Holds what the drawing library needs of its process. One at a time, for as long as is drawn.
class DrawingProcess final {
 public:
  DrawingProcess();
  ~DrawingProcess();
  DrawingProcess(const DrawingProcess&) = delete;
  DrawingProcess& operator=(const DrawingProcess&) = delete;

  /// Puts the operations that draw into a platform.
  void use(Platform& platform) const;

 private:
  std::unique_ptr<QGuiApplication> application_;
};

/// The same in a program that has its application already.
void useDrawing(Platform& platform);

} // namespace vitrelle::host
