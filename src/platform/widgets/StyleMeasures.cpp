// The measures and habits of the look.
#include "platform/widgets/RulewardStyle.h"
#include "platform/widgets/StyleParts.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QFontMetrics>
#include <QTabBar>

namespace {

constexpr int ButtonHeight = 26;
constexpr int ButtonWidth = 84;
constexpr int HeaderHeight = 25;
constexpr int ItemHeight = 20;

QSize TabSize(const QStyleOptionTab& tab, const QSize& contents, const QWidget* widget) {
    const auto* bar = qobject_cast<const QTabBar*>(widget);
    QSize size = contents;
    if (!tab.text.isEmpty() && bar) {
        // The selected tab's letters are wider; no tab moves when another is selected.
        const QFontMetrics bold(StylePaint::Bold(bar->font()));
        const int flags = Qt::TextShowMnemonic;
        size.rwidth() +=
            bold.size(flags, tab.text).width() - bar->fontMetrics().size(flags, tab.text).width();
    }
    size.setHeight(qMax(size.height(), bar && bar->documentMode() ? 34 : 29));
    return size;
}

QSize HeaderSize(const QStyleOptionHeader& section, const QSize& contents, const QWidget* widget) {
    QSize size = contents;
    if (section.orientation == Qt::Horizontal) {
        size.setHeight(qMax(size.height(), HeaderHeight));
        if (widget)
            size.rwidth() += QFontMetrics(StylePaint::Bold(widget->font())).horizontalAdvance(section.text) -
                             widget->fontMetrics().horizontalAdvance(section.text);
    }
    return size;
}

} // namespace

QSize RulewardStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                      const QWidget* widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_LineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame && frame->lineWidth > 0)
            size.setHeight(qMax(contents.height() + 6, Look::RowHeight));
        return size;
    case CT_ComboBox:
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
            return {contents.width() + (combo->editable ? 44 : 32),
                    qMax(contents.height() + 8, Look::RowHeight)};
        return size;
    case CT_SpinBox: return {contents.width() + 24, qMax(contents.height() + 4, Look::RowHeight)};
    case CT_PushButton:
        return {qMax(contents.width() + 24, ButtonWidth), qMax(contents.height() + 10, ButtonHeight)};
    case CT_CheckBox:
    case CT_RadioButton: return {size.width() + 3, qMax(size.height(), 20)};
    case CT_ToolButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            const bool isBeside = button->toolButtonStyle == Qt::ToolButtonTextBesideIcon;
            return {qMax(contents.width() + (isBeside ? 24 : 10), 26), qMax(contents.height() + 10, 26)};
        }
        return size;
    case CT_GroupBox:
        if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
            const QRect box(0, 0, 100, 100);
            QStyleOptionGroupBox measured(*group);
            measured.rect = box;
            const QRect inside = proxy()->subControlRect(CC_GroupBox, &measured, SC_GroupBoxContents, widget);
            return contents + box.size() - inside.size();
        }
        return size;
    case CT_MenuBarItem: return {contents.width() + 20, qMax(contents.height() + 10, 26)};
    case CT_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return StyleMenus::MenuItemSize(*item, contents);
        return size;
    case CT_TabBarTab:
        if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option))
            return TabSize(*tab, contents, widget);
        return size;
    case CT_HeaderSection:
        if (const auto* section = qstyleoption_cast<const QStyleOptionHeader*>(option))
            return HeaderSize(*section, size, widget);
        return size;
    case CT_MdiControls: return StyleMdi::Size();
    case CT_ItemViewItem: return {size.width(), qMax(size.height() + 2, ItemHeight)};
    default: return size;
    }
}

// The text of a check box ends at its last letter, and its focus frame just beyond it.
QRect RulewardStyle::subElementRect(SubElement element, const QStyleOption* option,
                                    const QWidget* widget) const {
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    switch (element) {
    case SE_CheckBoxFocusRect:
    case SE_RadioButtonFocusRect: return rect.adjusted(-3, -1, 3, 1).intersected(option->rect);
    case SE_LineEditContents: return rect.adjusted(4, 0, -4, 0);
    default: return rect;
    }
}

int RulewardStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_DefaultFrameWidth:
        // So wide that what scrolls inside does not reach the round corners.
        return qobject_cast<const QAbstractScrollArea*>(widget) ? 2 : 1;
    case PM_ComboBoxFrameWidth:
    case PM_SpinBoxFrameWidth: return 1;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return 15;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing: return 7;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical: return 0;
    case PM_ButtonDefaultIndicator: return 0;
    case PM_MenuButtonIndicator: return 18;
    case PM_ScrollBarExtent: return 14;
    case PM_ScrollBarSliderMin: return 28;
    case PM_ScrollView_ScrollBarSpacing:
    case PM_ScrollView_ScrollBarOverlap: return 0;
    case PM_MenuPanelWidth: return 1;
    case PM_MenuHMargin: return 3;
    case PM_MenuVMargin: return 4;
    case PM_MenuBarItemSpacing: return 0;
    case PM_MenuBarHMargin: return 6;
    case PM_MenuBarVMargin:
    case PM_MenuBarPanelWidth: return 0;
    case PM_SubMenuOverlap: return -1;
    case PM_ToolBarItemSpacing: return 2;
    case PM_ToolBarItemMargin: return 3;
    case PM_ToolBarFrameWidth: return 1;
    case PM_ToolBarSeparatorExtent: return 11;
    case PM_ToolBarIconSize:
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
    case PM_TabBarIconSize: return 16;
    case PM_SplitterWidth: return 6;
    case PM_TabBarTabHSpace: return 28;
    case PM_TabBarTabVSpace: return 12;
    case PM_TabBarTabOverlap:
    case PM_TabBarTabShiftHorizontal:
    case PM_TabBarTabShiftVertical: return 0;
    case PM_TabBarBaseHeight: return 1;
    case PM_TabBarBaseOverlap: return 1;
    case PM_HeaderMargin: return 6;
    case PM_HeaderMarkSize: return 10;
    case PM_HeaderDefaultSectionSizeVertical: return Look::RowHeight;
    case PM_FocusFrameHMargin: return 4;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin: return Look::Margin;
    case PM_LayoutHorizontalSpacing: return 8;
    case PM_LayoutVerticalSpacing: return 6;
    case PM_ToolTipLabelFrameWidth: return 5;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int RulewardStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returned) const {
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ComboBox_Popup:
    case SH_ItemView_ActivateItemOnSingleClick:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_MainWindow_SpaceBelowMenuBar:
    case SH_Widget_Animation_Duration:
    case SH_ScrollBar_Transient:
    case SH_TabBar_PreferNoArrows: return 0;
    case SH_UnderlineShortcut:
    case SH_ItemView_ShowDecorationSelected:
    case SH_ComboBox_ListMouseTracking: return 1;
    case SH_TabBar_Alignment: return Qt::AlignLeft;
    case SH_TabBar_ElideMode: return Qt::ElideNone;
    case SH_Table_GridLineColor: return static_cast<int>(Look::FaintLine);
    case SH_GroupBox_TextLabelColor: return static_cast<int>(Look::Heading);
    default: return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}
