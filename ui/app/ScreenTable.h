// Every screen that can be opened by its type name: the one list of them.
#pragma once

#include "core/app/Navigation.h"
#include "core/platform/Platform.h"

#include <QVariantMap>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle::ui {

class Navigator;

struct ScreenEntry {
  std::string name; ///< type name
  const char* page; ///< the QML file that draws it, without its ending
  /// The properties that the page begins with. Objects among them are left to QML.
  std::function<QVariantMap(Navigator&, const OpenScreen&)> make;
};

const std::vector<ScreenEntry>& screenTable();

/// Null for a name that no screen has.
const ScreenEntry* findScreen(std::string_view name);

} // namespace vitrelle::ui
