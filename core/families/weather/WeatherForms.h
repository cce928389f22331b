// The rows of the Weather family's forms.
#pragma once

#include "core/lifecycle/Form.h"

#include <vector>

namespace vitrelle {

std::vector<FormRow> weatherSetupRows();
std::vector<FormRow> weatherColourRows();

} // namespace vitrelle
