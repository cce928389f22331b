// The phone that this host stands for: chosen for one program, else as it was saved, else a
// phone of today.
#pragma once

#include "core/platform/Device.h"
#include "core/platform/PhoneBook.h"
#include "host/files/HomeFolder.h"

#include <optional>
#include <string>

namespace vitrelle::host {

/// What one program was told; the rest is as saved.
struct PhoneOverrides {
  std::optional<std::string> identifier;
  std::optional<OsVersion> os;
  std::optional<bool> zoomed;
};

PhoneChoice choosePhone(const HomeFolder& home, const PhoneOverrides& overrides);

PhoneBook makePhoneBook(const HomeFolder& home, const PhoneChoice& choice);

/// A simulator of the phone chosen, as the logic knows them.
Device makeDevice(const PhoneChoice& choice, bool dark);

} // namespace vitrelle::host
