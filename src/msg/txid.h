// The library-wide transaction counter: the only state the library keeps.
#pragma once

#include <stdint.h>

namespace zq {

// Not protected: callers that build requests on several threads serialise
// the builders themselves.  Defined (zero-initialised) in framing.cpp; inline
// here so that a request builder advances it without a call.
extern uint16_t transactionCounter;  // NOLINT(bugprone-dynamic-static-initializers): a declaration

// Advances the counter (16-bit wrap, 0 skipped) and returns the new value.
inline uint16_t nextTransactionId() {
    ++transactionCounter;
    if (transactionCounter == 0) transactionCounter = 1;
    return transactionCounter;
}
inline uint16_t currentTransactionId() { return transactionCounter; }

}  // namespace zq
