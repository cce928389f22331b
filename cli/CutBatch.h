// Many styles cut in one go, from a folder of screenshots named in pairs.
#pragma once

#include "cli/Command.h"

#include <string>

namespace vitrelle::cli {

/// Cuts each NAME-light and NAME-dark picture of `from` into `into`, the pairs numbered from 0 in
/// the order of their names. A pair that fails does not stop the next.
Exit cutBatch(const CommandContext& context, const std::string& from, const std::string& into,
              bool json);

} // namespace vitrelle::cli
