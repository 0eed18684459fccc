// Used by every test program that has no main function of its own.
#include "support/RunTests.h"

#include <QGuiApplication>

int main(int argc, char** argv) {
    return RunTests<QGuiApplication>(argc, argv);
}
