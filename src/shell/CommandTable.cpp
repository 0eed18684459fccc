#include "shell/CommandTable.h"

#include "model/Catalogue.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"

#include <algorithm>

namespace {

using enum MenuName;
using enum MenuRow;

constexpr ToolCommand Rows[] = {
    {File, Always, Command::New, 2087, 1175},
    {File, Always, Command::Learn, 1749, 1407},
    {File, Always, Command::Open, 2088, 1176},
    {File, WithDocument, Command::Close, 2091, 1391, 0, "Ctrl+W"},
    {File, WithDocument, Command::Save, 2089, 1177},
    {File, WithDocument, Command::SaveAs, 2092, 0, 0, "Ctrl+Shift+S"},
    {File, Separator},
    {File, WithDocument, Command::Print, 2090, 1178},
    {File, WithDocument, Command::PrintPreview, 2093},
    {File, Always, Command::PrintSetup, 2094},
    {File, Separator},
    {File, Always, Command::Merge, 2122},
    {File, Separator},
    {File, Always, Command::FirstRecentFile, 2095},
    {File, Separator},
    {File, Always, Command::Exit, 2096, 0, 0, "Ctrl+Q"},

    {Edit, Always, Command::Undo, 2097, 1183, 1190},
    {Edit, Always, Command::Redo, 2098, 1184, 1191, "Ctrl+Shift+Z"},
    {Edit, Separator},
    {Edit, Always, Command::Cut, 2099, 1181, 1192},
    {Edit, Always, Command::Copy, 2100, 1180, 1193},
    {Edit, Always, Command::Paste, 2101, 1182, 1194},

    {Window, Always, Command::Cascade, 2103, 1187},
    {Window, Always, Command::Tile, 2104, 1186},
    {Window, Always, Command::CloseAll, 2024},

    {Help, Always, Command::HelpTopics, 2117, 1179},
    {Help, Always, Command::About, 2106},
    {Help, Separator},
    {Help, Always, Command::WelcomePage, 2121},

    {None, Always, Command::PrintAtOnce, PrintAtOnceText},
    {None, Always, Command::ShowAllChecks, 2295},
    {None, Always, Command::MainToolbar, 2118},
};

constexpr unsigned ToolbarButtons[] = {Command::New,
                                       Command::Open,
                                       Command::Save,
                                       0,
                                       Command::Cut,
                                       Command::Copy,
                                       Command::Paste,
                                       0,
                                       Command::Undo,
                                       Command::Redo,
                                       0,
                                       Command::PrintAtOnce,
                                       0,
                                       Command::HelpTopics};

} // namespace

std::span<const ToolCommand> ToolCommands() {
    return Rows;
}

const ToolCommand* FindToolCommand(unsigned id) {
    const auto* row = std::find_if(std::begin(Rows), std::end(Rows),
                                   [id](const ToolCommand& each) { return each.id == id && id != 0; });
    return row == std::end(Rows) ? nullptr : row;
}

std::span<const unsigned> MainToolbarCommands() {
    return ToolbarButtons;
}

CommandText CutCommandText(const CString& text) {
    const qsizetype tab = text.indexOf('\t');
    return tab < 0 ? CommandText{text, {}} : CommandText{text.left(tab), text.mid(tab + 1)};
}

CString WithoutMnemonic(const CString& text) {
    CString plain;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == '&' && ++at == text.size())
            break;
        plain += text[at];
    }
    while (plain.endsWith('.'))
        plain.chop(1);
    return plain;
}

CommandText TextOfCommand(unsigned id) {
    if (const ToolCommand* row = FindToolCommand(id))
        return CutCommandText(LoadString(row->text));
    if (const AppCheckRow* row = FindAppCheckByCommand(id))
        return CutCommandText(LoadString(row->info.GetMenuTextID()));
    return {};
}

QList<QKeySequence> ShortcutsOf(unsigned id) {
    QList<QKeySequence> shortcuts;
    const CString told = TextOfCommand(id).accelerator;
    if (!told.isEmpty())
        shortcuts.append(QKeySequence::fromString(told, QKeySequence::PortableText));
    const ToolCommand* row = FindToolCommand(id);
    if (row && *row->shortcut)
        shortcuts.append(QKeySequence::fromString(row->shortcut, QKeySequence::PortableText));
    return shortcuts;
}
