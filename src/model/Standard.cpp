#include "model/Standard.h"

#include "model/CheckTree.h"
#include "model/CheckTypes.h"

#include <algorithm>

namespace {

constexpr MQC_CheckType_e CustomChecks = 122;
constexpr unsigned MacroFileId = 132;
constexpr unsigned ManagedStatus = 2;

} // namespace

CStandard::CStandard() : Root(CheckTree::MakeNode()) {}

CStandard::~CStandard() {
    CheckTree::Free(Root);
    for (const CCheck* snapshot : History)
        delete snapshot;
}

CStandard& CStandard::operator=(const CStandard& other) {
    if (this == &other)
        return *this;
    RemoveAllChecks();
    Unit = other.Unit;
    AngularUnit = other.AngularUnit;
    RunRWConfigOption = other.RunRWConfigOption;
    LastSequence = 0;
    CheckList checks;
    other.GetAllChecks(checks);
    for (const CCheck* check : checks) {
        unsigned sequence = 0;
        InsertCheck(CloneCheck(*check), sequence);
    }
    return *this;
}

std::unique_ptr<CCheck> CStandard::MakeCheck(MQC_CheckType_e type) {
    if (FindContainerType(type))
        return std::make_unique<CCheckManager>(type);
    return std::make_unique<CCheck>(type, 0u, 0u, 0u, 1u);
}

std::unique_ptr<CCheck> CStandard::CloneCheck(const CCheck& check) {
    auto clone = MakeCheck(check.Type);
    CopyOver(*clone, check);
    return clone;
}

void CStandard::CopyOver(CCheck& target, const CCheck& source) {
    target.CopyFrom(source);
    target.LifeStatus = source.LifeStatus;
}

int CStandard::AddCheck(std::unique_ptr<CCheck>& check, unsigned& outSequence) {
    CCheck* given = check.get();
    CCheck* old = nullptr;
    FindAnyByType(given->Type, old);
    const bool wasDeleted = old && old->LifeStatus == LifeDeleted;
    if (old) {
        old->LifeStatus = LifeInForce;
        old->Sequence = outSequence = ++LastSequence;
        CopyOver(*given, *old);
    }
    if (!wasDeleted)
        InsertCheck(std::move(check), outSequence);
    given->LifeStatus = LifeInForce;
    auto snapshot = CloneCheck(*given);
    snapshot->LifeStatus = LifeInForce;
    return PushHistory(std::move(snapshot));
}

std::unique_ptr<CCheck> CStandard::EditCheck(std::unique_ptr<CCheck> check) {
    CCheck* found = nullptr;
    FindLiveByType(check->Type, found);
    auto snapshot = MakeCheck(check->Type);
    if (!found)
        return snapshot;
    CopyOver(*snapshot, *found);
    snapshot->LifeStatus = LifeEdited;
    check->Sequence = found->Sequence;
    const bool changed = check->ApplyTo(*found);
    found->Criticality = check->Criticality;
    if (changed)
        PushHistory(std::move(snapshot));
    return nullptr;
}

std::unique_ptr<CCheck> CStandard::EditCheckCopy(const CCheck& check) {
    return EditCheck(CloneCheck(check));
}

void CStandard::DeleteCheck(unsigned sequence) {
    CCheck* check = nullptr;
    FindBySequence(sequence, check);
    if (!check)
        return;
    auto snapshot = CloneCheck(*check);
    snapshot->LifeStatus = LifeDeleted;
    PushHistory(std::move(snapshot));
    check->LifeStatus = LifeDeleted;
}

void CStandard::InsertCheck(std::unique_ptr<CCheck> check, unsigned& outSequence) {
    CCheck* node = CheckTree::MakeNode();
    check->Sequence = outSequence = ++LastSequence;
    node->Links.Values.Add(check.release());
    node->Links.Values.Add(Root);
    Root = node;
}

void CStandard::RemoveCheck(unsigned sequence) {
    CCheck* check = nullptr;
    FindBySequence(sequence, check);
    CCheck* parent = check ? CheckTree::FindParent(Root, check) : nullptr;
    if (!parent)
        return;
    parent->Links.Values.Remove(check);
    Root = CheckTree::Tidy(Root);
    std::replace(m_stepChecks.begin(), m_stepChecks.end(), check, static_cast<CCheck*>(nullptr));
    delete check;
}

void CStandard::RemoveAllChecks() {
    CheckTree::Free(Root);
    std::fill(m_stepChecks.begin(), m_stepChecks.end(), nullptr);
    Root = CheckTree::MakeNode();
}

void CStandard::FindBySequence(unsigned sequence, CCheck*& outCheck) const {
    CheckTree::Walk(Root, [&](CCheck& check) {
        if (check.Sequence == sequence)
            outCheck = &check;
    });
}

void CStandard::FindLiveByType(MQC_CheckType_e type, CCheck*& outCheck) const {
    CheckList live;
    GetLiveChecks(live);
    for (CCheck* check : live)
        if (check->Type == type) {
            outCheck = check;
            return;
        }
}

void CStandard::FindAnyByType(MQC_CheckType_e type, CCheck*& outCheck) const {
    CheckList all;
    GetAllChecks(all);
    for (CCheck* check : all)
        if (check->Type == type) {
            outCheck = check;
            return;
        }
}

bool CStandard::GetAllChecks(CheckList& list) const {
    if (Root->Links.Values.Count < 1)
        return false;
    // One walk enters every check under its number; a later one of the same number stands for the earlier.
    std::vector<CCheck*> byNumber(LastSequence + 1, nullptr);
    CheckTree::Walk(Root, [&byNumber](CCheck& check) {
        if (check.Sequence < byNumber.size())
            byNumber[check.Sequence] = &check;
    });
    for (unsigned number = 1; number <= LastSequence; ++number)
        if (byNumber[number])
            list.push_back(byNumber[number]);
    return true;
}

bool CStandard::GetLiveChecks(CheckList& list) const {
    CheckList all;
    const size_t before = list.size();
    GetAllChecks(all);
    for (CCheck* check : all)
        if (check->LifeStatus != LifeDeleted)
            list.push_back(check);
    return list.size() > before;
}

int CStandard::CountLiveChecks() const {
    CheckList live;
    GetLiveChecks(live);
    return static_cast<int>(live.size());
}

bool CStandard::HasManagedCorrection() const {
    CheckList live;
    GetLiveChecks(live);
    for (const CCheck* check : live)
        if (check->Status == ManagedStatus && check->CorrectionKind != 0)
            return true;
    return false;
}

void CStandard::GetReferencedFiles(CStringArray& list) const {
    list.clear();
    CCheck* container = nullptr;
    FindLiveByType(CustomChecks, container);
    if (!container)
        return;
    for (const CCheck* child : container->Children) {
        const CParameter<CString*>* macro = child->GetStringParameter(MacroFileId);
        if (macro && macro->Values.Count > 0 && macro->Values[0])
            list.append(*macro->Values[0]);
    }
}

void CStandard::ChangeUnits(int lengthUnit, int angleUnit) {
    CheckList checks;
    GetAllChecks(checks);
    // Snapshots are in the standard's units as well: an undo must not bring back figures of another unit.
    checks.insert(checks.end(), History.begin(), History.end());
    for (CCheck* check : checks)
        check->ConvertUnits(Unit, lengthUnit, AngularUnit, angleUnit);
    Unit = lengthUnit;
    AngularUnit = angleUnit;
}
