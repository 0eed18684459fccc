#include "ShellRoom.h"

#include "shell/CommandTable.h"

#include <QVBoxLayout>

PlainView::PlainView(CAdminModuleApp& app, CAdminModuleDoc& document, QWidget* parent)
    : QWidget(parent), box(new QLineEdit(this)), m_app(app), m_document(document) {
    (new QVBoxLayout(this))->addWidget(box);
    connect(box, &QLineEdit::editingFinished, this, [this] { ++boxWritten; });
}

CCheck* PlainView::LiveCheck(unsigned command) const {
    CCheck* check = nullptr;
    if (const PageCheckRow* row = FindPageCheckByCommand(command))
        m_document.GetStandard().FindLiveByType(row->type, check);
    return check;
}

bool PlainView::OnCommand(unsigned id) {
    if (id == Command::ShowAllChecks) {
        m_app.FlipShowAll();
        return true;
    }
    const PageCheckRow* row = FindPageCheckByCommand(id);
    if (!row)
        return false;
    unsigned sequence = 0;
    if (const CCheck* check = LiveCheck(id)) {
        m_document.GetStandard().DeleteCheck(check->Sequence);
    } else {
        auto made = CStandard::MakeCheck(row->type);
        m_document.GetStandard().AddCheck(made, sequence);
    }
    return true;
}

bool PlainView::OnUpdateCommand(unsigned id, CommandState& state) {
    if (id == Command::ShowAllChecks) {
        state.checked = m_app.IsShowingAll();
        return true;
    }
    state.checked = LiveCheck(id) != nullptr;
    return FindPageCheckByCommand(id) != nullptr;
}

QByteArray StandardXml(const QByteArray& version) {
    const QByteArray attribute = version.isEmpty() ? QByteArray() : " Version=\"" + version + "\"";
    return "<Standard Unit=\"2\" AngularUnit=\"0\"" + attribute +
           "><Check Type=\"101\" LifeStatus=\"0\"/></Standard>";
}

ShellRoom::ShellRoom()
    : app([](CAdminModuleApp& owner, CAdminModuleDoc& document, QWidget* parent) {
          return new PlainView(owner, document, parent);
      }) {
    CRecentFiles files;
    files.Load();
    for (const CString& path : CStringArray(files.Paths()))
        files.Remove(path);
}

ShellRoom::~ShellRoom() {
    app.ExitInstance();
}

void ShellRoom::Start() {
    ASSERT_TRUE(app.InitInstance());
    Gui::Show(Frame());
}

void ShellRoom::Send(unsigned command) {
    Gui::Settle();
    app.GetRouter().Send(command);
    Gui::Settle();
}

void ShellRoom::Edit(int times) {
    CStandard& standard = Document().GetStandard();
    for (int count = 0; count < times; ++count) {
        auto check = CStandard::MakeCheck(101);
        unsigned sequence = 0;
        CCheck* live = nullptr;
        standard.FindLiveByType(101, live);
        if (live)
            standard.DeleteCheck(live->Sequence);
        else
            standard.AddCheck(check, sequence);
    }
    app.GetRouter().Arm();
    Gui::Settle();
}

CString ShellRoom::PutStandard(const CString& name, const QByteArray& version) {
    folder.Put(name, StandardXml(version));
    return folder.Path(name);
}

CAdminModuleDoc* ShellRoom::Open(const CString& path) {
    CAdminModuleDoc* document = app.OpenDocumentFile(path);
    Gui::Settle();
    return document;
}
