#include "support/StandardText.h"

#include "files/StandardTree.h"

CString TextOf(const CStandard& standard) {
    CXmlDocument document;
    const CurrentXmlDocument current(document);
    BuildStandardTree(document, standard);
    return document.GetXmlText();
}

void ReadText(const CString& text, CStandard& standard) {
    ASSERT_TRUE(standard.LoadFromXmlText(text));
}

CString LiveTextOf(const CStandard& standard) {
    CStandard live;
    live.Unit = standard.Unit;
    live.AngularUnit = standard.AngularUnit;
    for (const CCheck* check : LiveOf(standard)) {
        unsigned number = 0;
        auto copy = CStandard::CloneCheck(*check);
        copy->LifeStatus = LifeInForce;
        live.InsertCheck(std::move(copy), number);
    }
    return TextOf(live);
}

void Insert(CStandard& standard, int type) {
    unsigned number = 0;
    standard.InsertCheck(CStandard::MakeCheck(type), number);
}

CheckList AllOf(const CStandard& standard) {
    CheckList checks;
    standard.GetAllChecks(checks);
    return checks;
}

CheckList LiveOf(const CStandard& standard) {
    CheckList checks;
    standard.GetLiveChecks(checks);
    return checks;
}

std::vector<unsigned> NumbersOf(const CheckList& checks) {
    std::vector<unsigned> numbers;
    for (const CCheck* check : checks)
        numbers.push_back(check->Sequence);
    return numbers;
}
