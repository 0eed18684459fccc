// A check that may stand more than once: a container of checks of one fixed type.
#pragma once

#include "model/Check.h"

class CCheckManager : public CCheck {
public:
    explicit CCheckManager(MQC_CheckType_e type);
    ~CCheckManager() override;

    // Copies all but name, `Status` and `LifeStatus`; children are rebuilt.
    CCheckManager& CopyFrom(const CCheck& source) override;
    void ReadXml(const CXmlElement& element) override;
    std::unique_ptr<CXmlElement> WriteXml() override;
    // Unlike a plain check assigns neither name nor criticality.
    bool ApplyTo(CCheck& target) override;
    void HookB() override {}
    int HookC() override { return -1; }

    // A new child of the fixed type, or null for a type that is no container. It belongs to the caller.
    std::unique_ptr<CCheck> MakeChild() const;

private:
    void ReplaceChildren(const CCheck& source);
    void DeleteChildren();
};
