// The screens of the phones that this host can stand for.
#pragma once

#include "core/platform/PhoneBook.h"

#include <string_view>
#include <vector>

namespace vitrelle::host {

/// Every phone, the newest first.
const std::vector<PhoneModel>& phoneModels();

/// The model of a machine identifier; for one that is not in the list, such as a tablet's, the
/// screen of a phone of today under the identifier as its name.
PhoneModel phoneModel(std::string_view identifier);

} // namespace vitrelle::host
