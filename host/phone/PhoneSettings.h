// The phone that this host stands for: chosen for one program, else as it was saved, else a
// phone of today.
#pragma once

#include "core/platform/Device.h"
#include "core/platform/PhoneBook.h"
#include "host/desktop/EventLoop.h"
#include "host/files/HomeFolder.h"

#include <optional>
#include <string>

namespace vitrelle::host {

/// What one program was told; the rest is as saved.
struct PhoneOverrides {
  std::optional<std::string> identifier = {};
  std::optional<OsVersion> os = {};
  std::optional<bool> zoomed = {};
  std::optional<AppearanceChoice> appearance = {};
};

/// Two groups of operations over one choice.
struct PhoneOperations {
  /// A simulator of the phone chosen, as the logic knows them. As the desktop is it is light:
  /// programs with a window put the desktop's own in the place of that.
  Device device;
  /// What is saved holds at once, also instead of what this program was told. While somebody
  /// watches, what other processes save holds as well, but for what this program was told.
  PhoneBook phoneBook;
};

PhoneOperations makePhone(const HomeFolder& home, const PhoneOverrides& overrides,
                          const EventLoop& loop);

} // namespace vitrelle::host
