#include "support/GuiTool.h"

#include "platform/LanguageLibrary.h"
#include "platform/widgets/MessageBoxes.h"
#include "shell/CatalogueButton.h"
#include "shell/TabToolbar.h"
#include "support/Gui.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QTabBar>
#include <optional>

GuiTool::GuiTool(QSize size)
    : m_app(std::make_unique<CAdminModuleApp>(
          [](CAdminModuleApp& app, CAdminModuleDoc& document, QWidget* parent) -> DocumentView* {
              return new CAdminModView(app, document, parent);
          })) {
    if (!m_app->InitInstance())
        qFatal("The tool does not start.");
    Frame().showNormal();
    Frame().resize(size);
    Gui::Show(Frame());
}

GuiTool::~GuiTool() {
    for (CAdminModuleDoc* document : m_app->GetDocuments())
        document->SetModifiedFlag(false);
    m_app->ExitInstance();
    m_app.reset();
    Gui::Settle();
}

CAdminModView& GuiTool::View() {
    return dynamic_cast<CAdminModView&>(*m_app->GetActiveView());
}

bool GuiTool::Do(unsigned command) {
    Gui::Settle();
    QAction* action = m_app->GetRouter().ActionOf(command);
    Gui::Settle();
    if (!action->isEnabled())
        return false;
    action->trigger();
    Gui::Settle();
    return true;
}

void GuiTool::PressCheck(MQC_CheckType_e pageType) {
    const PageCheckRow* row = FindPageCheck(pageType);
    CTabToolbar& bar = Frame().GetTabToolbar();
    Gui::ClickAt(bar.GetTabs(), bar.GetTabs().tabRect(static_cast<int>(row->group)).center());
    QWidget* button = Gui::FindNumber(bar, static_cast<int>(row->commandID));
    if (!button)
        qFatal("No button for check %d.", pageType);
    // Document fonts are added by a dialog, which offers the check that was asked for.
    std::optional<Gui::Answer> addFonts;
    if (row->dialogTemplateID == 1080 && !Page().GetTable().Find(pageType)->IsActive())
        addFonts.emplace([](QWidget& dialog) { Gui::PressButton(dialog, LoadString(2143)); });
    Gui::Click(*button);
}

CExtDialog* GuiTool::Pane(MQC_CheckType_e pageType) {
    CExtDialog* pane = Page().GetPane(pageType, false);
    return pane && pane->isVisible() ? pane : nullptr;
}

void GuiTool::SetCriticality(MQC_CheckType_e pageType, int row) {
    if (auto* combo = Control<QWidget>(pageType, 1249))
        Gui::ChooseRow(*combo, row);
}

void GuiTool::ShowPage(SheetPage page) {
    View().ActivatePage(page);
    Gui::Settle();
}

bool GuiTool::SaveAs(const CString& path) {
    const Gui::Answer answer([&path](QWidget& dialog) { Gui::ChooseFile(dialog, path); });
    Do(Command::SaveAs);
    return answer.WasAnswered() && QFile::exists(path);
}

bool GuiTool::Open(const CString& path) {
    const auto before = m_app->GetDocuments().size();
    const Gui::Answer answer([&path](QWidget& dialog) { Gui::ChooseFile(dialog, path); });
    Do(Command::Open);
    return answer.WasAnswered() && m_app->GetDocuments().size() > before;
}

bool GuiTool::Close() {
    const auto before = m_app->GetDocuments().size();
    Document().SetModifiedFlag(false);
    Do(Command::Close);
    return m_app->GetDocuments().size() < before;
}

QImage GuiTool::Picture() {
    Gui::Settle();
    return Frame().grab().toImage();
}
