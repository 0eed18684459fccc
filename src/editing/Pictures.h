// What the pictures stand for that a user chooses among.
#pragma once

#include "platform/Text.h"

// What a bitmap of the choices of a parameter is called; empty for any other.
CString PictureText(unsigned bitmap);
