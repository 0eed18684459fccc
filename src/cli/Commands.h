#pragma once

// Runs kvstd with the arguments of main; the result is the exit code.
int RunCommandLine(int argc, char** argv);
