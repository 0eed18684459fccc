#include "Figures.h"
#include "files/Packing.h"
#include "files/XmlDocument.h"
#include "model/Standard.h"
#include "support/MemoryFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <libxml/parser.h>
#include <libxml/xmlsave.h>
#include <optional>
#include <zlib.h>

namespace {

constexpr int Rows = 10'000;
constexpr int Rounds = 9;

// A standard with one check of many custom properties.
void FillStandard(CStandard& standard) {
    auto container = CStandard::MakeCheck(105);
    for (int i = 0; i < Rows; ++i) {
        auto row = std::make_unique<CCheck>(104, 0u, 0u, 0u, 1u);
        row->Name = CString("Property %1").arg(i);
        row->GetStringParameter(1724)->Values.Add(new CString(row->Name));
        row->GetLongParameter(1725)->Values.Add(30);
        row->GetStringParameter(1726)->Values.Add(new CString(CString("value %1").arg(i * 7)));
        for (const unsigned id : {1724u, 1725u, 1726u})
            row->FindParameter(id)->Parameter->Operator = OpEqual;
        container->Children.Add(row.release());
    }
    unsigned sequence = 0;
    standard.AddCheck(container, sequence);
}

QByteArray ReadAll(const CString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

xmlDoc* BareParse(const QByteArray& bytes) {
    return xmlReadMemory(bytes.constData(), static_cast<int>(bytes.size()), nullptr, nullptr, 0);
}

void BareSerialiseAndDeflate(xmlDoc* document) {
    xmlBuffer* buffer = xmlBufferCreate();
    xmlSaveCtxt* save = xmlSaveToBuffer(buffer, "UTF-8", XML_SAVE_NO_DECL);
    xmlSaveDoc(save, document);
    xmlSaveClose(save);
    const auto size = static_cast<uLong>(xmlBufferLength(buffer));
    std::vector<Bytef> packed(compressBound(size));
    auto packedSize = static_cast<uLongf>(packed.size());
    compress2(packed.data(), &packedSize, xmlBufferContent(buffer), size, Z_DEFAULT_COMPRESSION);
    xmlBufferFree(buffer);
}

} // namespace

std::vector<Figure> FileFigures() {
    const QTemporaryDir folder(MemoryFolderTemplate());
    QDir(folder.path()).mkdir("work");
    const CString xml = folder.filePath("work/standard.kvstd");
    CStandard standard;
    FillStandard(standard);
    standard.SaveToFile(xml);
    const QByteArray bytes = ReadAll(xml);
    xmlDoc* document = BareParse(bytes);

    // A standard that was read stays: its freeing is no part of the reading, and has a turn of its own.
    std::optional<CStandard> loaded;
    const std::vector<double> times =
        MedianTimes({[&] { xmlFreeDoc(BareParse(bytes)); },
                     [&] {
                         loaded.emplace();
                         loaded->LoadFromFile(xml);
                     },
                     [&] { loaded.reset(); }, [&] { BareSerialiseAndDeflate(document); },
                     [&] {
                         standard.SaveToFile(xml);
                         PackFolder(folder.filePath("packed.kvstd"), folder.filePath("work"));
                     }},
                    Rounds);
    xmlFreeDoc(document);
    return {{"read 10,000 property rows / bare XML parse", times[1] / times[0], 2.0},
            {"write 10,000 property rows / bare serialise and deflate", times[4] / times[3], 2.0}};
}
