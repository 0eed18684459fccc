#include "gui/FullStandard.h"

#include "files/Packing.h"
#include "model/Standard.h"
#include "support/RandomStandard.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

constexpr MQC_CheckType_e CustomProperties = 105;
constexpr unsigned Seed = 54;

void AddPropertyRows(CCheckManager& container, int count) {
    for (int i = 0; i < count; ++i) {
        auto row = container.MakeChild();
        row->Name = CString("Property %1").arg(i);
        row->GetStringParameter(1724)->Values.Add(new CString(row->Name));
        row->GetLongParameter(1725)->Values.Add(30);
        row->GetStringParameter(1726)->Values.Add(new CString(CString("value %1").arg(i * 7)));
        for (const unsigned id : {1724u, 1725u, 1726u})
            row->FindParameter(id)->Parameter->Operator = OpEqual;
        container.Children.Add(row.release());
    }
}

void RequireManyFonts(CCheck& check) {
    CParameter<CString*>& names = *check.GetStringParameter(1700);
    names.ClearValues();
    for (int i = 0; i < FontCount; ++i)
        names.Values.Add(new CString(CString("Font %1").arg(i)));
    names.Operator = OpOneOf;
}

} // namespace

void WriteFullStandard(const CString& path, int propertyRows) {
    RandomStandard random(Seed, RandomStandard::Taste::Fitting);
    CStandard standard;
    standard.Unit = 0;
    for (const PageCheckRow& row : PageChecks()) {
        auto check = random.Check(row.type);
        if (row.type == CustomProperties && propertyRows > 0)
            AddPropertyRows(dynamic_cast<CCheckManager&>(*check), propertyRows);
        if (row.type == FontCheck)
            RequireManyFonts(*check);
        unsigned sequence = 0;
        standard.InsertCheck(std::move(check), sequence);
    }
    const QTemporaryDir folder;
    standard.SaveToFile(folder.filePath(QFileInfo(path).fileName()));
    PackFolder(path, folder.path());
}
