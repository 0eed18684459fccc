// The panes of the small checks of assemblies.
#pragma once

#include "dialogs/ValuePane.h"
#include "editing/BoxGroup.h"

#include <memory>
#include <optional>

class ComparisonPair;
class ValueField;

// A pane with one pair of a comparison and its values.
class CComparisonPane : public CValuePane {
    Q_OBJECT

public:
    // `characters` are those that the values may have.
    CComparisonPane(EditingHost& host, const PaneNumbers& numbers, unsigned parameter,
                    const char* characters);
    ~CComparisonPane() override;

protected:
    bool OnInitDialog() override;
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;

private:
    unsigned m_parameter;
    CString m_characters;
    std::unique_ptr<ComparisonPair> m_pair;
};

class CAssemblyInterferenceDlg : public CComparisonPane {
    Q_OBJECT

public:
    explicit CAssemblyInterferenceDlg(EditingHost& host);

protected:
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;

private:
    void AttachVolumeUnit();

    std::optional<BoxGroup> m_options;
};

class CAssemblyFixedPartDlg : public CComparisonPane {
    Q_OBJECT

public:
    explicit CAssemblyFixedPartDlg(EditingHost& host);
};

class CAssemblyMisalignConcentricMatesDlg : public CValuePane {
    Q_OBJECT

public:
    explicit CAssemblyMisalignConcentricMatesDlg(EditingHost& host);
    ~CAssemblyMisalignConcentricMatesDlg() override;

protected:
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;
    void ApplyEnableRules() override;

private:
    enum Mode { NoneAllowed = 0, AllAllowed = 1, UpToMaximum = 2 };

    Mode CheckMode() const;
    void StoreMaximum(CCheck& check) const;

    std::unique_ptr<ValueField> m_maximum;
};

class CExternalReferenceDlg : public CValuePane {
    Q_OBJECT

public:
    explicit CExternalReferenceDlg(EditingHost& host);

protected:
    void PrepareControls() override;
    void LoadControls(const CCheck& check) override;
    void StoreControls(CCheck& check) const override;

private:
    std::optional<BoxGroup> m_states;
};
