// The rows of the Time family's two forms.
#pragma once

#include "core/lifecycle/Form.h"

#include <vector>

namespace vitrelle {

std::vector<FormRow> clockSetupRows();
std::vector<FormRow> clockColourRows();

} // namespace vitrelle
