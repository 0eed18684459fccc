#include "support/Gui.h"
#include "support/RunTests.h"

#include <QApplication>

int main(int argc, char** argv) {
    return RunTests<QApplication, Gui::Setup>(argc, argv);
}
