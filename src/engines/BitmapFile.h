// Bitmaps in the device-independent form, and the ".bmp" files made of them.
#pragma once

#include "platform/Text.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <cstdint>

// The 40-byte header, the colour table and the pixel rows, bottom-up and padded to 32 bits, at the
// depth of the bitmap: 1, 8, 16 (5 bits a colour), 24 or 32. The table has 2^depth entries for depths
// of at most 8 and none above. A palette, where given, takes the place of the bitmap's own table.
// A null array for a null bitmap and for every compression but 0: bit fields (3) are never made, and
// the run-length forms need a driver that this platform does not have.
QByteArray BuildDib(const QImage& bitmap, std::uint32_t compression, const QList<QRgb>* palette);

// Writes a ".bmp" file; an empty path takes a new name in the temporary folder. A file that stands
// there is replaced only by a complete new one; after a failure nothing half-written stays behind.
// The pixel offset in the file header is right for the depths with a colour table only.
bool SaveBitmapToFile(const QImage& bitmap, CString& path);

// Saves the language library's bitmap of that number, drawn on white, with a colour table, so that
// every reader opens the file. False, with nothing written, where there is no such bitmap.
bool SaveBitmapResource(unsigned id, CString& path);
