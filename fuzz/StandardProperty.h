// What holds for any document that opens as a standard: it can be written and read again, and undoing all
// edits brings back what there was.
#pragma once

#include "files/StandardTree.h"
#include "platform/Message.h"
#include "support/FolderTree.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// A standard without what undo is not meant to restore: the traces that an edited check and a check that
// was once added keep in their life status, and the numbers.
struct StandardContent {
    std::vector<std::string> live;    // in number order
    std::vector<std::string> deleted; // in no order: one that was brought back meanwhile has a later number

    bool operator==(const StandardContent&) const = default;
};

class StandardRoom {
public:
    explicit StandardRoom(const std::filesystem::path& folder) : m_folder(folder) {}

    // What does not hold, or an empty text. The input is a document, a zero byte, and bytes that choose
    // edits.
    std::string Try(std::string_view input) const {
        const MessageScope silent([](const CString&, MessageButtons) { return MessageAnswer::No; });
        const size_t end = input.find('\0');
        const std::string_view edits = end == input.npos ? std::string_view() : input.substr(end + 1);
        WriteBytes(m_folder / "in.kvstd", std::string(input.substr(0, end)));
        CStandard standard;
        if (!standard.LoadFromFile(Text("in.kvstd")))
            return {};
        if (!WritesTheSameAgain(standard))
            return "a second write gives other bytes";
        return UndoesAll(standard, edits) ? "" : "undo of everything gives something else";
    }

    // A first write drops what is out of force; from then on nothing may change.
    bool WritesTheSameAgain(CStandard& standard) const {
        const std::string second = Reload(Write(standard));
        return !second.empty() && Reload(second) == second;
    }

    // Makes as many edits as the history can hold, then takes all of them back.
    bool UndoesAll(CStandard& standard, std::string_view edits) const {
        Settle(standard);
        CheckList checks;
        standard.GetAllChecks(checks);
        if (checks.size() > MostChecks)
            return true;
        const StandardContent before = ContentOf(standard, {});
        std::vector<MQC_CheckType_e> added;
        for (size_t i = 0; i + 1 < edits.size() && standard.History.Count < CStandard::MostSteps; i += 2)
            Edit(standard, static_cast<unsigned char>(edits[i]), static_cast<unsigned char>(edits[i + 1]),
                 added);
        int step = 0;
        while (standard.CanUndo())
            standard.StepHistory(true, step);
        return ContentOf(standard, added) == before;
    }

private:
    static constexpr size_t MostChecks = 200; // more would only be slower

    CString Text(const char* name) const { return CString::fromStdString((m_folder / name).native()); }

    // A write takes out of force what has no values.
    static void Settle(const CStandard& standard) {
        CXmlDocument document;
        const CurrentXmlDocument current(document);
        BuildStandardTree(document, standard);
    }
    std::string Write(CStandard& standard) const {
        standard.SaveToFile(Text("out.kvstd"));
        return ReadBytes(m_folder / "out.kvstd");
    }
    // What is written of what was read of these bytes; empty where they cannot be read.
    std::string Reload(const std::string& bytes) const {
        WriteBytes(m_folder / "again.kvstd", bytes);
        CStandard standard;
        return standard.LoadFromFile(Text("again.kvstd")) ? Write(standard) : std::string();
    }

    static std::string XmlOf(CCheck& check) {
        CXmlDocument document;
        const CurrentXmlDocument current(document);
        const auto element = check.WriteXml();
        element->ChangeAttribute("LifeStatus", "");
        CString text;
        element->GetXml(text);
        return text.toStdString();
    }

    // A check that was added, and whose adding was undone, stays as a deleted one.
    static StandardContent ContentOf(const CStandard& standard, const std::vector<MQC_CheckType_e>& added) {
        StandardContent content;
        CheckList checks;
        standard.GetAllChecks(checks);
        for (CCheck* check : checks) {
            const bool isAdded = std::find(added.begin(), added.end(), check->Type) != added.end();
            if (check->LifeStatus != LifeDeleted)
                content.live.push_back(XmlOf(*check));
            else if (!isAdded)
                content.deleted.push_back(XmlOf(*check));
        }
        std::sort(content.deleted.begin(), content.deleted.end());
        return content;
    }

    static void Edit(CStandard& standard, unsigned what, unsigned which,
                     std::vector<MQC_CheckType_e>& added) {
        CheckList checks;
        standard.GetAllChecks(checks);
        CCheck* check = checks.empty() ? nullptr : checks[which % checks.size()];
        int step = 0;
        switch (what % 5) {
        case 0: return AddNew(standard, which, added);
        case 1: return check ? DeleteOrBringBack(standard, *check) : void();
        case 2: return check ? Change(standard, *check, what) : void();
        case 3: standard.CanUndo() ? standard.StepHistory(true, step) : 0; return;
        default: standard.CanRedo() ? standard.StepHistory(false, step) : 0; return;
        }
    }

    static void AddNew(CStandard& standard, unsigned which, std::vector<MQC_CheckType_e>& added) {
        static constexpr MQC_CheckType_e Types[] = {101, 103, 104, 122, 127, 203, 312, 608, 701, 9999};
        const MQC_CheckType_e type = Types[which % std::size(Types)];
        CCheck* known = nullptr;
        standard.FindAnyByType(type, known);
        if (known)
            return;
        unsigned sequence = 0;
        auto check = CStandard::MakeCheck(type);
        standard.AddCheck(check, sequence);
        added.push_back(type);
    }

    static void DeleteOrBringBack(CStandard& standard, const CCheck& check) {
        CCheck* live = nullptr;
        standard.FindLiveByType(check.Type, live);
        unsigned sequence = 0;
        if (check.LifeStatus != LifeDeleted) {
            standard.DeleteCheck(check.Sequence);
        } else if (!live) {
            auto again = CStandard::MakeCheck(check.Type);
            standard.AddCheck(again, sequence);
        }
    }

    // Only what counts as a difference makes a step, so the criticality always changes.
    static void Change(CStandard& standard, const CCheck& check, unsigned what) {
        CCheck* live = nullptr;
        standard.FindLiveByType(check.Type, live);
        if (!live)
            return;
        auto edited = CStandard::CloneCheck(*live);
        edited->Criticality = live->Criticality + 1;
        edited->Name += CString::number(what);
        for (CParameterEntry* entry : edited->Parameters) {
            entry->Parameter->Operator = what % 15;
            entry->Parameter->Remarks = "edited";
            VisitParameter(*entry, [](auto& parameter) { parameter.ClearValues(); });
        }
        standard.EditCheck(std::move(edited));
    }

    std::filesystem::path m_folder;
};
