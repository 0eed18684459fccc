// Pictures of the language library for windows: sharp at every scale of the screen.
#pragma once

#include "platform/LanguageLibrary.h"

#include <QIcon>
#include <QPixmap>
#include <QSize>

// A picture of its own size, for a screen on which a pixel of the window is `scale` pixels; null where there
// is none.
QPixmap PixmapOf(ImageType type, unsigned id, qreal scale);

// The same as an icon, which draws itself at the scale it is asked for.
QIcon PictureOf(ImageType type, unsigned id);

// The size of a picture in pixels of the window; empty where there is none.
QSize PictureSize(ImageType type, unsigned id);

// What a bitmap of the choices of a parameter is called; empty for any other.
CString PictureText(unsigned bitmap);
