// zovqmi-cli: everyday modem operations from the command line (see --help).
#include "cli.h"

int main(int argc, char** argv) { return zovapp::runCli(argc, argv); }
