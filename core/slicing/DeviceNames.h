// From the kernel's machine identifier to the phone's marketing name, which is the key of the
// measurement tables.
#pragma once

#include "core/platform/Platform.h"

#include <span>
#include <string>
#include <string_view>

namespace vitrelle {

struct DeviceNameRow {
  std::string_view identifier; ///< "iPhone16,1"
  std::string_view name;       ///< "iPhone 15 Pro"
};

/// The 121 known identifiers. Several share a name; none stands twice.
std::span<const DeviceNameRow> deviceNameRows();

/// The non-zero bytes of the field, those behind a zero included. A byte with the top bit set is a
/// fatal error.
std::string machineIdentifier(const MachineField& machine);

/// The name of an identifier; an unknown identifier is its own name. The identifier of a simulator
/// ("i386", "x86_64", "arm64") gives "Simulator " and the name of the model in the environment,
/// "iOS" when there is none.
std::string modelName(std::string_view identifier, const Device& device);

/// The name of the device that the platform runs on, found once for each platform.
std::string deviceName(const Platform& platform);

/// What was made once for the device is made anew, as if the program began again: for a host that
/// has begun to stand for another phone. Slices that are stored stay as they were cut.
void forgetDevice(const Platform& platform);

} // namespace vitrelle
