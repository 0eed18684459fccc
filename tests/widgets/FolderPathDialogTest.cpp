#include "platform/widgets/FolderPathDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <utility>

namespace {

class FolderPathDialog : public testing::Test {
protected:
    FolderPathDialog() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QDir(m_folder.path()).mkdir("chosen");
        m_poll.setInterval(10);
        QObject::connect(&m_poll, &QTimer::timeout, &m_poll, [this] { Poll(); });
    }

    // Opens the picker and lets `act` use it as soon as it stands. After a time limit it is closed.
    bool Run(CFolderPathDialog& dialog, const std::function<void(QFileDialog&)>& act) {
        m_act = act;
        m_rounds = 0;
        m_poll.start();
        const bool chosen = dialog.DoModal();
        m_poll.stop();
        EXPECT_LT(m_rounds, RoundLimit) << "The picker did not close in time.";
        return chosen;
    }

    static void Enter(QFileDialog& picker, const CString& text) {
        picker.findChild<QLineEdit*>("fileNameEdit")->setText(text);
        QMetaObject::invokeMethod(&picker, "accept");
    }

    QTemporaryDir m_folder;

private:
    static constexpr int RoundLimit = 500;

    void Poll() {
        auto* picker = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (++m_rounds >= RoundLimit && QApplication::activeModalWidget())
            QApplication::activeModalWidget()->close();
        if (picker && m_act)
            std::exchange(m_act, nullptr)(*picker);
    }

    std::function<void(QFileDialog&)> m_act;
    QTimer m_poll;
    int m_rounds = 0;
};

} // namespace

TEST_F(FolderPathDialog, ChosenFolderIsHandedOut) {
    CFolderPathDialog dialog("Materials", m_folder.path());
    const CString wanted = m_folder.filePath("chosen");
    EXPECT_TRUE(Run(dialog, [&wanted](QFileDialog& picker) { Enter(picker, wanted); }));
    EXPECT_EQ(dialog.ChosenFolder, wanted);
    EXPECT_EQ(dialog.Title, "Materials");
}

TEST_F(FolderPathDialog, OpensOnTheInitialFolderWithItsTitle) {
    CFolderPathDialog dialog("Materials", m_folder.path());
    CString title, folder;
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
    EXPECT_TRUE(Run(dialog, [&](QFileDialog& picker) {
        title = picker.windowTitle();
        folder = picker.directory().absolutePath();
        mode = picker.fileMode();
        Enter(picker, "chosen");
    }));
    EXPECT_EQ(title, "Select Folder");
    EXPECT_EQ(folder, m_folder.path());
    EXPECT_EQ(mode, QFileDialog::Directory);
    EXPECT_EQ(dialog.ChosenFolder, m_folder.filePath("chosen"));
}

TEST_F(FolderPathDialog, CancelChoosesNothing) {
    CFolderPathDialog dialog("Materials", m_folder.path());
    EXPECT_FALSE(Run(dialog, [](QFileDialog& picker) { picker.reject(); }));
    EXPECT_EQ(dialog.ChosenFolder, "");
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(FolderPathDialog, CancelKeepsAnEarlierChoice) {
    CFolderPathDialog dialog("Materials", m_folder.path());
    const CString wanted = m_folder.filePath("chosen");
    EXPECT_TRUE(Run(dialog, [&wanted](QFileDialog& picker) { Enter(picker, wanted); }));
    EXPECT_FALSE(Run(dialog, [](QFileDialog& picker) { picker.reject(); }));
    EXPECT_EQ(dialog.ChosenFolder, wanted);
}
