#include "support/GuiRandom.h"

#include "platform/LanguageLibrary.h"
#include "support/GuiAgreement.h"

#include <algorithm>
#include <utility>

namespace {

constexpr unsigned AskToReplace = 1937;
constexpr size_t Documents = 3;
constexpr int LogLength = 25;

} // namespace

RandomWalk::RandomWalk(unsigned seed, const CString& folder)
    : m_numbers(seed), m_folder(folder), m_messages([this](const CString& text, MessageButtons buttons) {
          return AnswerMessage(text, buttons);
      }) {
    const auto files = static_cast<size_t>(Files().size());
    while (m_tool.App().GetDocuments().size() < std::max(Documents, files + 1))
        OpenAnother();
}

void RandomWalk::Step() {
    using Walk = RandomWalk;
    static constexpr Kind Kinds[] = {{16, &Walk::PressCheck},
                                     {10, &Walk::ChooseCriticality},
                                     {8, &Walk::EditDraftingStandard},
                                     {10, &Walk::EditAnyControl},
                                     {14, &Walk::Undo},
                                     {9, &Walk::Redo},
                                     {5, &Walk::SwitchPage},
                                     {6, &Walk::Copy},
                                     {4, &Walk::Cut},
                                     {8, &Walk::Paste},
                                     {10, &Walk::SelectPane},
                                     {4, &Walk::Collapse},
                                     {3, &Walk::ClosePane},
                                     {3, &Walk::ChangeUnit},
                                     {6, &Walk::SwitchDocument},
                                     {2, &Walk::ShowAll},
                                     {4, &Walk::SwitchTab},
                                     {1, &Walk::SaveAs},
                                     {3, &Walk::CloseDocument}};
    if (Below(static_cast<unsigned>(MeanStepsToSave)) == 0) {
        Save();
        return;
    }
    int total = 0;
    for (const Kind& kind : Kinds)
        total += kind.weight;
    int at = static_cast<int>(Below(static_cast<unsigned>(total)));
    for (const Kind& kind : Kinds) {
        at -= kind.weight;
        if (at < 0) {
            (this->*kind.act)();
            return;
        }
    }
}

CString RandomWalk::WhatIsWrong() {
    return std::exchange(m_wrong, {}) + WhatDiffers(m_tool) + UnmodifiedDiffers();
}

CString RandomWalk::LastCommands() const {
    return m_log.join("\n  ");
}

void RandomWalk::Note(const CString& command) {
    const auto& documents = m_tool.App().GetDocuments();
    const auto front = std::ranges::find(documents, m_tool.App().GetActiveDocument()) - documents.begin();
    m_log.append(CString("[%1] %2").arg(front).arg(command));
    if (m_log.size() > LogLength)
        m_log.removeFirst();
}

MessageAnswer RandomWalk::AnswerMessage(const CString& text, MessageButtons buttons) {
    if (buttons == MessageButtons::YesNo && text.endsWith(LoadString(AskToReplace)))
        return Chance(60) ? MessageAnswer::Yes : MessageAnswer::No;
    if (buttons != MessageButtons::SaveDiscardCancel || !m_isClosing) {
        Complain("unexpected message: " + text);
        return buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Ok;
    }
    const CString path = m_tool.Document().GetUserPath();
    switch (Below(path.isEmpty() ? 2 : 3)) {
    case 0: return MessageAnswer::Discard;
    case 1: return MessageAnswer::Cancel;
    default: break;
    }
    m_savedOnClose = path;
    BeginSave(path);
    return MessageAnswer::Save;
}
