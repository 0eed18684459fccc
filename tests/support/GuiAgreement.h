// Whether windows and model of the tool agree: panes, catalogue, menus, status bar and title of the document
// in front.
#pragma once

#include "support/GuiTool.h"

// A line for each thing that differs; empty where all agree.
CString WhatDiffers(GuiTool& tool);
