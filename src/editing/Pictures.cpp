#include "editing/Pictures.h"

#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"

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
