// What stands where a file is to go, and so what may be put there. In the home all is the user's
// alone and of our making; elsewhere the user asked for the file, and his rules hold.
#pragma once

#include "core/platform/Result.h"
#include "host/files/Descriptor.h"
#include "host/files/HomeFolder.h"

#include <optional>
#include <string>

#include <sys/types.h>

namespace vitrelle::host {

struct Destination {
  std::string path;          ///< elsewhere with symbolic links followed
  std::string waitingPrefix; ///< on the same file system; a name behind it hides the waiting file
  mode_t mode = 0600;        ///< for a new file; the umask goes off it
  mode_t folderMode = 0700;

  /// Of a file that is replaced elsewhere, whose permissions stay.
  struct Owner {
    uid_t user;
    gid_t group;
    mode_t mode;
  };
  std::optional<Owner> old;

  /// A pipe or a device, which is written to and not replaced: opened.
  Descriptor stream;
};

/// Fails for a folder, a terminal, a file that may not be written, and the like.
Result<Destination> destinationOf(const HomeFolder& home, const std::string& place);

} // namespace vitrelle::host
