#include "cli/Commands.h"

int RunCommandLine(int, char**) {
    return 2;
}
