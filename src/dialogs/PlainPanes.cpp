#include "dialogs/PlainPanes.h"
