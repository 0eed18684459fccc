// The controls by which the panes and the dialog of the font checks tell what fonts a text may have.
#pragma once

#include "editing/ComparisonPair.h"
#include "editing/ExtDialog.h"

#include <QObject>
#include <span>

// Where the correction of a parameter stands in the template.
struct FontCorrection {
    int control;
    unsigned parameter;
    int mode;
};

class FontControls : public QObject {
    Q_OBJECT

public:
    // Whether the window's template has all that is needed.
    static bool AreIn(const CACInfoManagerDlg& window);

    // Fills the controls of the window, which has them and outlives this.
    explicit FontControls(CACInfoManagerDlg& window);

    // Whether the template lets the text take the font of its document. The controls then have no say.
    bool HasDocumentFont() const;
    std::span<const FontCorrection> Corrections() const;

    // Shows a check, and tells nobody.
    void Load(const CCheck& check);
    // Writes what the controls show.
    void Store(CCheck& check) const;

    static constexpr unsigned HeightParameter = 1704, SpacingParameter = 1705;

Q_SIGNALS:
    void Changed(); // by the user

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum Mode { InUnits = 0, InPoints = 1 };

    void FillLists();
    void SetNames();
    void Wire();
    void AttachUnits();
    void Tell();
    void OnChosen();
    void FocusHeight();
    void OnPointSizeEdited();
    void ApplyEnableRules();
    void ResetHeightControls();
    void ClearControls();
    bool IsDocumentFont() const;
    void LoadFonts(const CCheck& check);
    void LoadHeights(const CCheck& check);
    void ShowPoints(const CParameter<int>& points);
    void StoreFonts(CCheck& check) const;
    void StoreHeights(CCheck& check) const;
    template <class Control> Control& Get(int number) const;

    CACInfoManagerDlg& m_window;
    ComparisonPair m_height;
    ComparisonPair m_spacing;
    int HeightMode = InUnits; // of the height's two forms only the one in use is written
    bool m_isLoading = false;
    bool m_isByMouse = false; // the last of the choices was clicked
};
