// The application that this desktop plays music with.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace vitrelle::host {

/// Where the desktop's files about applications lie, those that count first.
struct ApplicationFolders {
  QStringList settings; ///< of the user's and the system's choices
  QStringList data;     ///< in whose "applications" the programs are described

  /// As the environment tells them.
  static ApplicationFolders ofSession();
};

/// The program and its arguments: of the one that the user has chosen for music, else of one that
/// plays it; nothing where there is none.
std::optional<QStringList> musicCommand(const ApplicationFolders& folders);

/// Starts it; false where there is none.
bool openMusicApplication();

} // namespace vitrelle::host
