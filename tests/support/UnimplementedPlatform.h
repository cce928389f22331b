// Where every test's platform starts: each operation fails the test by its name, so a test says
// which operations the logic may use by overriding them.
#pragma once

#include "core/platform/Platform.h"

namespace vitrelle::test {

Platform unimplementedPlatform();

} // namespace vitrelle::test
