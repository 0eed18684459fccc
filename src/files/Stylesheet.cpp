#include "files/Stylesheet.h"

#include "files/StylesheetPieces.h"
#include "files/XmlDocument.h"

CString BuildStylesheet(const TextSource& texts) {
    using namespace StylesheetPieces;
    struct Piece {
        const char* piece;
        unsigned text; // of the language library, behind the piece
    };
    static constexpr Piece Pieces[] = {{A, 1944}, {B, 1945}, {C, 1946}, {D, 1947}, {E, 1948},
                                       {F, 2394}, {G, 2395}, {H, 2261}, {H, 1907}};
    CString stylesheet;
    for (const Piece& piece : Pieces)
        stylesheet += QLatin1String(piece.piece) + texts(piece.text);
    return stylesheet + QLatin1String(I);
}

FileResult WriteStylesheet(const CString& folder, const CString& name, const TextSource& texts) {
    CXmlDocument document;
    if (!document.LoadXmlText(BuildStylesheet(texts)))
        return {false, document.GetLoadError()};
    try {
        document.Save(folder + "/" + name);
    } catch (const CXmlError& error) {
        return {false, QString::fromUtf8(error.what())};
    }
    return {};
}
