#include "host/drawing/DrawingProcess.h"

#include "host/drawing/Fonts.h"
#include "host/drawing/Rasteriser.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdio>

namespace vitrelle::host {

namespace {

// The library keeps both for as long as it runs.
int argumentCount = 1;
char programName[] = "vitrelle";
char* arguments[] = {programName, nullptr};

/// Drops what the library has to say of the desktop that is not there, and of fonts.
void tellTroubleAlone(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg)
    std::fprintf(stderr, "vitrelle: drawing: %s\n", qPrintable(message));
}

} // namespace

DrawingProcess::DrawingProcess() {
  qInstallMessageHandler(tellTroubleAlone);
  // Without a display, and with the same pixels everywhere.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  application_ = std::make_unique<QGuiApplication>(argumentCount, arguments);
}

DrawingProcess::~DrawingProcess() = default;

void DrawingProcess::use(Platform& platform) const {
  useDrawing(platform);
}

void useDrawing(Platform& platform) {
  platform.drawing = makeDrawing(platform.symbols);
  platform.fonts = makeFonts();
}

} // namespace vitrelle::host
