// The library-wide transaction counter: the only state the library keeps.
#pragma once

#include <stdint.h>

namespace zq {

// Advances the counter (16-bit wrap, 0 skipped) and returns the new value.
uint16_t nextTransactionId();
uint16_t currentTransactionId();

}  // namespace zq
