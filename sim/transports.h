// The device transports of the zovqmi-sim tool.
#pragma once

#include <string>

#include "modem.h"

namespace zovsim {

// Serves the modem through a file `<dir>/cdc-wdm0` of a FUSE file system
// mounted on `dir` (direct I/O: each write hands over one whole frame, each
// read returns exactly one).  Prints "device: PATH" once mounted and runs
// until SIGINT or SIGTERM.  Returns the exit status.
int serveFuse(Modem& modem, const std::string& dir, bool debug);
bool fuseAvailable();

// Serves the modem on a pseudo-terminal and prints "device: PATH" (the
// slave).  Requests may arrive in pieces or several at once: they are
// reassembled by the QMUX length.  Runs until SIGINT or SIGTERM.
int servePty(Modem& modem);

}  // namespace zovsim
