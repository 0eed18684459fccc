#include "model/CheckManager.h"

#include "model/CheckTypes.h"
#include "platform/LanguageLibrary.h"

CCheckManager::CCheckManager(MQC_CheckType_e type) : CCheck(type, 0, 0, 0, 1) {
    const ContainerType* container = FindContainerType(type);
    Name = container ? LoadString(container->nameText) : CString();
}

CCheckManager::~CCheckManager() {
    DeleteChildren();
}

void CCheckManager::DeleteChildren() {
    for (const CCheck* child : Children)
        delete child;
    Children.Clear();
}

std::unique_ptr<CCheck> CCheckManager::MakeChild() const {
    const ContainerType* container = FindContainerType(Type);
    return container ? std::make_unique<CCheck>(container->child, 0u, 0u, 0u, 1u) : nullptr;
}

void CCheckManager::ReplaceChildren(const CCheck& source) {
    DeleteChildren();
    for (const CCheck* child : source.Children) {
        auto copy = MakeChild();
        if (!copy)
            return;
        copy->CopyFrom(*child);
        Children.Add(copy.release());
    }
}

CCheckManager& CCheckManager::CopyFrom(const CCheck& source) {
    Sequence = source.Sequence;
    Type = source.Type;
    Links = source.Links;
    Criticality = source.Criticality;
    ReplaceChildren(source);
    CopyParametersFrom(source);
    return *this;
}

bool CCheckManager::ApplyTo(CCheck& target) {
    bool changed = Children.Count != target.Children.Count;
    if (changed) {
        target.CopyFrom(*this);
    } else {
        changed = Criticality != target.Criticality;
        for (int i = 0; i < Children.Count; ++i)
            changed |= Children[i]->ApplyTo(*target.Children[i]);
    }
    changed |= ApplyParametersTo(target);
    return changed;
}
