// A pane of one check on a page, worked as by a user.
#pragma once

#include "support/PaneRoom.h"
#include "support/WrittenCheck.h"

#include "editing/FileList.h"
#include "editing/MyStatic.h"
#include "platform/LanguageLibrary.h"
#include "platform/Settings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

constexpr MQC_CheckType_e BendTable = 503, FileLocations = 127, FixedParts = 603, ExternalReferences = 604,
                          Interferences = 607, Mates = 608;

// Rows of the boxes of operators.
enum OperatorRow : int { Any, Equal, Below, Above, AtLeast, AtMost, Between, OneOf, NoneOf };

class CheckHand {
public:
    explicit CheckHand(ControlHost& pane) : m_pane(pane) {}

    template <class T = QWidget> T& Get(int number) const { return *m_pane.GetDlgItem<T>(number); }
    QComboBox& Combo(int number) const { return Get<QComboBox>(number); }
    QLineEdit& Field(int number) const { return Get<QLineEdit>(number); }
    FileList& List(int number) const { return Get<FileList>(number); }
    bool IsEnabled(int number) const { return Get(number).isEnabled(); }
    bool IsChecked(int number) const { return Get<QAbstractButton>(number).isChecked(); }

    void Click(int number) const { Gui::Click(Get(number)); }
    void Choose(int number, int row) const { Gui::ChooseRow(Get(number), row); }
    // Types over what stands in a field, one key after another.
    void Type(int number, const CString& text) const {
        Gui::Focus(Get(number));
        Field(number).selectAll();
        Gui::Key(Get(number), Qt::Key_Delete);
        Gui::Type(Get(number), text);
    }
    void ClickRow(int number, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        FileList& list = List(number);
        list.scrollToItem(list.topLevelItem(row));
        Gui::ClickAt(*list.viewport(), list.visualItemRect(list.topLevelItem(row)).center(), modifiers);
    }
    // As a file manager does; whether the list took it.
    bool Drop(int number, const CStringArray& paths) const {
        QMimeData data;
        QList<QUrl> urls;
        for (const CString& path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        QWidget& target = *List(number).viewport();
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &drop);
        Gui::Settle();
        return drop.isAccepted();
    }

private:
    ControlHost& m_pane;
};

class CheckRoom : public testing::Test {
protected:
    explicit CheckRoom(MQC_CheckType_e type) : m_type(type) {}

    void SetUp() override {
        room.standard.Unit = 0;
        room.Show();
        room.GetChecksPage().resize(1100, 900);
        room.Add(m_type);
    }
    CExtDialog& Pane() { return *room.Pane(m_type); }
    CheckHand Hand() { return CheckHand(Pane()); }
    CCheck& Live() { return *room.Live(m_type); }
    CString Written(unsigned parameter) { return ::Written(Live(), parameter); }
    // What the pane writes without a change by the user.
    std::unique_ptr<CCheck> Shown() {
        auto check = CStandard::MakeCheck(m_type);
        Pane().FillCheck(*check);
        return check;
    }

    PaneRoom room;

private:
    MQC_CheckType_e m_type;
};
