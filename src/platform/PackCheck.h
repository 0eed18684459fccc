// Whether a binary resource file is whole. The reader of such files believes its tables: one that was cut
// off, by a full disk or a broken copy, would be read beyond its end.
#pragma once

#include <QByteArrayView>

bool IsWholePack(QByteArrayView pack);
