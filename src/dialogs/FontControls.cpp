#include "dialogs/FontControls.h"

#include "editing/ComparisonTexts.h"
#include "editing/CorrectionChoices.h"
#include "editing/ExtRichEditCtrl.h"
#include "editing/FontList.h"
#include "editing/ParameterControls.h"
#include "engines/TextServices.h"
#include "engines/UIUtilities.h"
#include "engines/UnitConvertor.h"
#include "platform/Format.h"
#include "platform/LanguageLibrary.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace {

enum Control : int {
    UnitsButton = 1000,
    HeightComparison,
    HeightField,
    SpacingComparison,
    SpacingField,
    PointsButton,
    PointsComparison,
    StrikeoutBox,
    UnderlineBox,
    DocumentFontBox = 1068,
    Fonts = 1136,
    Styles,
    PointSizes
};
enum Parameter : unsigned {
    DocumentFont = 1690,
    FontNames = 1700,
    FontStyles,
    Strikeout,
    Underline,
    Points = 1706
};

constexpr unsigned Height = FontControls::HeightParameter, Spacing = FontControls::SpacingParameter;
constexpr unsigned AnyText = 1632;
constexpr int FontStyleCount = 4; // codes from 1
constexpr int Sizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};

constexpr std::pair<int, unsigned> YesNoBoxes[] = {{StrikeoutBox, Strikeout}, {UnderlineBox, Underline}};

constexpr FontCorrection PlainCorrections[] = {
    {1304, FontNames, TextEntry},   {1297, FontStyles, NumberEntry}, {1298, Strikeout, NumberEntry},
    {1299, Underline, NumberEntry}, {1300, Height, NumberEntry},     {1301, Spacing, NumberEntry},
    {1302, Points, NumberEntry}};
constexpr FontCorrection OverridingCorrections[] = {
    {1304, DocumentFont, NumberEntry}, {1297, FontNames, TextEntry},   {1298, FontStyles, NumberEntry},
    {1299, Strikeout, NumberEntry},    {1300, Underline, NumberEntry}, {1301, Height, NumberEntry},
    {1302, Spacing, NumberEntry},      {1303, Points, NumberEntry}};

constexpr unsigned PointOperators[] = {OpNone, OpEqual, OpBelow, OpAbove, OpAtMost, OpAtLeast};
const QList<unsigned> LengthOperators = {OpNone,    OpEqual,   OpBelow, OpAbove, OpAtMost,
                                         OpAtLeast, OpBetween, OpOneOf, OpNoneOf};

CString StyleText(long code) {
    CString text;
    CUIUtilities().FontStyleText(static_cast<int>(code), text);
    return text;
}

void ChooseText(QComboBox& combo, const CString& text) {
    combo.setCurrentIndex(combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

} // namespace

FontControls::FontControls(CACInfoManagerDlg& window)
    : m_window(window), m_height(&Get<QComboBox>(HeightComparison), &Get<QLineEdit>(HeightField), true),
      m_spacing(&Get<QComboBox>(SpacingComparison), &Get<QLineEdit>(SpacingField), true) {
    FillLists();
    SetNames();
    Wire();
    ApplyEnableRules();
    AttachUnits();
}

bool FontControls::AreIn(const CACInfoManagerDlg& window) {
    for (int number = UnitsButton; number <= UnderlineBox; ++number)
        if (!window.GetDlgItem(number))
            return false;
    return window.GetDlgItem<CFontList>(Fonts) && window.GetDlgItem<CChoiceList>(Styles) &&
           window.GetDlgItem<QComboBox>(PointSizes);
}

template <class Control> Control& FontControls::Get(int number) const {
    return *m_window.GetDlgItem<Control>(number);
}

bool FontControls::HasDocumentFont() const {
    return m_window.GetDlgItem(DocumentFontBox);
}

std::span<const FontCorrection> FontControls::Corrections() const {
    if (HasDocumentFont())
        return OverridingCorrections;
    return PlainCorrections;
}

void FontControls::FillLists() {
    Get<CFontList>(Fonts).FillWithInstalled();
    for (long code = 1; code <= FontStyleCount; ++code)
        Get<CChoiceList>(Styles).addItem(StyleText(code));
    for (ComparisonPair* pair : {&m_height, &m_spacing})
        pair->Fill(LengthOperators);
    for (const int number : {HeightField, SpacingField})
        Get<CExtRichEditCtrl>(number).SetFilter(NumberListCharacters, false);
    for (const unsigned code : PointOperators)
        Get<QComboBox>(PointsComparison).addItem(OperatorText(code));
    auto& sizes = Get<QComboBox>(PointSizes);
    sizes.setCompleter(nullptr); // would make 10 of a 1
    for (const int size : Sizes)
        sizes.addItem(FormatInt(size));
    for (const auto& [number, id] : YesNoBoxes)
        FillYesNo(m_window, number, LoadString(id));
}

void FontControls::SetNames() {
    m_height.SetName(LoadString(Height));
    m_spacing.SetName(LoadString(Spacing));
    constexpr std::pair<int, unsigned> names[] = {
        {Fonts, FontNames}, {Styles, FontStyles}, {PointSizes, Points}};
    for (const auto& [number, name] : names)
        Get<QWidget>(number).setAccessibleName(LoadString(name));
    Get<QComboBox>(PointSizes).lineEdit()->setAccessibleName(LoadString(Points));
    Get<QWidget>(PointsComparison).setAccessibleName(ComparisonName(LoadString(Points)));
}

void FontControls::Wire() {
    for (const int number : {Fonts, Styles})
        connect(&Get<CChoiceList>(number), &QListWidget::itemSelectionChanged, this, &FontControls::Tell);
    for (const int number : {StrikeoutBox, UnderlineBox})
        connect(&Get<QComboBox>(number), &QComboBox::activated, this, &FontControls::Tell);
    for (ComparisonPair* pair : {&m_height, &m_spacing})
        connect(pair, &ComparisonPair::Changed, this, &FontControls::Tell);
    connect(&Get<QComboBox>(PointsComparison), &QComboBox::activated, this, &FontControls::OnChosen);
    for (const int number : {UnitsButton, PointsButton, DocumentFontBox})
        if (auto* button = m_window.GetDlgItem<QAbstractButton>(number)) {
            connect(button, &QAbstractButton::clicked, this, &FontControls::OnChosen);
            button->installEventFilter(this);
        }
    connect(&Get<QComboBox>(PointSizes), &QComboBox::editTextChanged, this, &FontControls::OnPointSizeEdited);
    Get<QComboBox>(PointSizes).installEventFilter(this);
}

// Which of the two labels stands beside which correction differs between the templates.
void FontControls::AttachUnits() {
    m_window.AttachUnitLabel(HeightField, 1210, 0, DimensionLength);
    m_window.AttachUnitLabel(SpacingField, 1211, 0, DimensionLength);
    for (const FontCorrection& correction : Corrections()) {
        if (correction.parameter == Height)
            m_window.AttachUnitLabel(correction.control, HasDocumentFont() ? 1212 : 1213, 0, DimensionLength);
        if (correction.parameter == Spacing)
            m_window.AttachUnitLabel(correction.control, HasDocumentFont() ? 1213 : 1212, 0, DimensionLength);
    }
}

void FontControls::Tell() {
    if (!m_isLoading)
        Q_EMIT Changed();
}

void FontControls::OnChosen() {
    HeightMode = Get<QAbstractButton>(PointsButton).isChecked() ? InPoints : InUnits;
    ApplyEnableRules();
    Tell();
    // One who walks through the choices by keys has not chosen yet.
    if (m_isByMouse)
        FocusHeight();
}

void FontControls::FocusHeight() {
    for (const int number : {HeightField, SpacingField})
        if (auto& field = Get<QWidget>(number); field.isEnabled())
            return field.setFocus();
}

bool FontControls::eventFilter(QObject* watched, QEvent* event) {
    const bool isSizes = watched == &Get<QComboBox>(PointSizes);
    if (isSizes && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        OnPointSizeEdited();
    else if (!isSizes && event->type() == QEvent::MouseButtonPress)
        m_isByMouse = true;
    else if (!isSizes && event->type() == QEvent::KeyPress)
        m_isByMouse = false;
    return QObject::eventFilter(watched, event);
}

void FontControls::OnPointSizeEdited() {
    if (m_isLoading)
        return;
    auto& sizes = Get<QComboBox>(PointSizes);
    const CString entered = sizes.currentText();
    CString clean;
    ExtractNumber(entered, clean);
    if (clean != entered) {
        const qsizetype behind = entered.size() - sizes.lineEdit()->cursorPosition();
        sizes.setEditText(clean);
        sizes.lineEdit()->setCursorPosition(static_cast<int>(qMax<qsizetype>(clean.size() - behind, 0)));
    }
    m_window.GuardLessThanBound(PointsComparison, PointSizes);
    Tell();
}

bool FontControls::IsDocumentFont() const {
    const auto* box = m_window.GetDlgItem<QAbstractButton>(DocumentFontBox);
    return box && box->isChecked();
}

void FontControls::ApplyEnableRules() {
    const bool isOwn = !IsDocumentFont(), isInPoints = HeightMode == InPoints;
    for (const int number : {int(Fonts), int(Styles), int(StrikeoutBox), int(UnderlineBox)})
        Get<QWidget>(number).setEnabled(isOwn);
    m_spacing.SetEnabled(isOwn && !isInPoints);
    m_height.SetEnabled(isOwn && !isInPoints);
    const auto& comparison = Get<QComboBox>(PointsComparison);
    Get<QWidget>(PointsComparison).setEnabled(isOwn && isInPoints);
    Get<QWidget>(PointSizes)
        .setEnabled(isOwn && isInPoints && comparison.currentText() != LoadString(AnyText));
}

void FontControls::ResetHeightControls() {
    if (HeightMode == InPoints) {
        ChooseText(Get<QComboBox>(PointsComparison), LoadString(AnyText));
        Get<QComboBox>(PointSizes).setCurrentIndex(0);
    } else {
        m_height.Show(OpNone, {});
        m_spacing.Show(OpNone, {});
    }
}

void FontControls::ClearControls() {
    for (const int number : {Fonts, Styles})
        Get<CChoiceList>(number).clearSelection();
    for (const int number : {StrikeoutBox, UnderlineBox})
        ChooseText(Get<QComboBox>(number), LoadString(AnyText));
}

void FontControls::Load(const CCheck& check) {
    const QScopedValueRollback<bool> loading(m_isLoading, true);
    const auto* documentFont = HasDocumentFont() ? check.GetIntParameter(DocumentFont) : nullptr;
    const bool isDocumentFont = documentFont && documentFont->Operator != OpNone;
    if (auto* box = m_window.GetDlgItem<QAbstractButton>(DocumentFontBox))
        box->setChecked(isDocumentFont);
    if (!isDocumentFont) {
        ClearControls();
        LoadFonts(check);
        LoadHeights(check);
        for (const auto& [number, id] : YesNoBoxes)
            LoadYesNo(m_window, number, check.GetIntParameter(id));
    }
    ApplyEnableRules();
}

void FontControls::LoadFonts(const CCheck& check) {
    if (const auto* names = check.GetStringParameter(FontNames); names && names->Operator != OpNone) {
        CStringArray texts;
        for (const CString* name : names->Values)
            if (name)
                texts.append(*name);
        Get<CChoiceList>(Fonts).Choose(texts, true);
    }
    if (const auto* styles = check.GetLongParameter(FontStyles); styles && styles->Operator != OpNone) {
        CStringArray texts;
        for (const long code : styles->Values)
            texts.append(StyleText(code));
        Get<CChoiceList>(Styles).Choose(texts, false);
    }
}

void FontControls::LoadHeights(const CCheck& check) {
    const auto* points = check.GetIntParameter(Points);
    HeightMode = points && points->Operator != OpNone ? InPoints : InUnits;
    Get<QAbstractButton>(HeightMode == InPoints ? PointsButton : UnitsButton).setChecked(true);
    ResetHeightControls();
    if (HeightMode == InPoints) {
        ShowPoints(*points);
        return;
    }
    if (const auto* height = check.GetDoubleParameter(Height))
        m_height.Load(*height);
    if (const auto* spacing = check.GetDoubleParameter(Spacing))
        m_spacing.Load(*spacing);
}

// A size that is not on offer stands as a text.
void FontControls::ShowPoints(const CParameter<int>& points) {
    ChooseText(Get<QComboBox>(PointsComparison), OperatorText(points.Operator));
    const CString size = FormatInt(points.Values[0]);
    auto& sizes = Get<QComboBox>(PointSizes);
    sizes.setCurrentIndex(sizes.findText(size, Qt::MatchStartsWith));
    sizes.setEditText(size);
}

void FontControls::Store(CCheck& check) const {
    if (auto* documentFont = HasDocumentFont() ? check.GetIntParameter(DocumentFont) : nullptr) {
        Emptied(*documentFont);
        if (IsDocumentFont()) {
            documentFont->Values.Add(1);
            documentFont->Operator = OpEqual;
            return;
        }
    }
    StoreFonts(check);
    StoreHeights(check);
    for (const auto& [number, id] : YesNoBoxes)
        StoreYesNo(m_window, number, check.GetIntParameter(id), OpEqual);
}

void FontControls::StoreFonts(CCheck& check) const {
    if (auto* names = check.GetStringParameter(FontNames)) {
        Emptied(*names);
        for (const CString& name : Get<CChoiceList>(Fonts).ChosenTexts())
            names->Values.Add(new CString(name));
        names->Operator = names->Values.Count > 0 ? OpOneOf : OpNone;
    }
    if (auto* styles = check.GetLongParameter(FontStyles)) {
        Emptied(*styles);
        for (const CString& style : Get<CChoiceList>(Styles).ChosenTexts())
            styles->Values.Add(CUIUtilities().FontStyleCode(style));
        styles->Operator = styles->Values.Count > 0 ? OpOneOf : OpNone;
    }
}

void FontControls::StoreHeights(CCheck& check) const {
    if (auto* points = check.GetIntParameter(Points); points && HeightMode == InPoints) {
        Emptied(*points).Operator = static_cast<unsigned>(
            CUIUtilities().OperatorCode(Get<QComboBox>(PointsComparison).currentText()));
        int size = 0;
        ParseInt(Get<QComboBox>(PointSizes).currentText(), size);
        points->Values.Add(size);
    }
    if (HeightMode == InPoints)
        return;
    if (auto* height = check.GetDoubleParameter(Height))
        m_height.Store(*height);
    if (auto* spacing = check.GetDoubleParameter(Spacing))
        m_spacing.Store(*spacing);
}
