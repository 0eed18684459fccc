#include "editing/Pictures.h"

#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"

#include <QPixmapCache>

QPixmap PixmapOf(ImageType type, unsigned id, qreal scale) {
    const QString key = QString("ruleward/%1/%2/%3").arg(static_cast<int>(type)).arg(id).arg(scale);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap::fromImage(LoadImageOf(type, id, scale));
    pixmap.setDevicePixelRatio(scale);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QIcon PictureOf(ImageType type, unsigned id) {
    QIcon icon;
    for (const qreal scale : {1.0, 1.5, 2.0})
        if (const QPixmap pixmap = PixmapOf(type, id, scale); !pixmap.isNull()) {
            icon.addPixmap(pixmap);
            icon.addPixmap(pixmap, QIcon::Selected); // a chosen row does not tint its picture
        }
    return icon;
}

QSize PictureSize(ImageType type, unsigned id) {
    return PixmapOf(type, id, 1.0).size();
}

CString PictureText(unsigned bitmap) {
    const CEnumEngine engine;
    for (const int kind : {KindArrowStyle, KindLineThickness, KindLineStyle, KindDisplayMode, KindTextAlign1,
                           KindTextAlign2, KindTextAlign3, KindTextAlign4, KindSharpDisplay}) {
        unsigned long value = 0;
        CString text;
        if (engine.FindValueByImage(kind, bitmap, value) && engine.GetDisplayString(kind, value, text))
            return text;
    }
    return {};
}
