// PDS, the position determination service.
#include <cstddef>

#include "testutil.h"

using namespace t;

namespace {
TEST(PdsPlaceholder, Builds) { SUCCEED(); }
}  // namespace
