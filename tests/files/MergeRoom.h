// A folder with standards to be merged, plain and packed, and the looks at what comes out.
#pragma once

#include "files/Merge.h"
#include "files/Packing.h"
#include "files/XmlDocument.h"
#include "platform/LanguageLibrary.h"
#include "support/Messages.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <map>
#include <vector>

inline CString Check(const CString& type, const CString& name, const CString& inside = {}, int life = 0) {
    return CString("<Check Type=\"%1\" Name=\"%2\" LifeStatus=\"%3\" Criticality=\"1\">%4</Check>")
        .arg(type, name)
        .arg(life)
        .arg(inside);
}

inline CString Measure(int kind, const CStringArray& values, const CString& attributes = {}) {
    CString inside;
    for (const CString& value : values)
        inside += "<Value>" + value + "</Value>";
    return CString("<Parameter Name=\"Size\" Type=\"1\"%1><Operator>2</Operator>"
                   "<ParameterType>%2</ParameterType>%3<Remarks/></Parameter>")
        .arg(attributes)
        .arg(kind)
        .arg(inside);
}

// `unit` and the like are attributes as they stand in the file.
inline CString Standard(const CString& checks, const CString& attributes = "Unit=\"0\" Version=\"2026\"") {
    return "<Standard " + attributes + ">" + checks + "</Standard>";
}

class MergeRoom : public ::testing::Test {
protected:
    MergeRoom() { QDir(folder.Path()).mkdir("run"); }

    CString Put(const CString& name, const CString& xml) {
        folder.Put(name, xml.toUtf8());
        files.append(folder.Path(name));
        return files.last();
    }

    using SideFiles = std::map<CString, QByteArray>; // by path beside the XML

    CString PutPacked(const CString& name, const CString& xml, const SideFiles& sides = {}) {
        const CString inside = "packing-" + name;
        QDir(folder.Path()).mkdir(inside);
        folder.Put(inside + "/" + name, xml.toUtf8());
        for (const auto& [path, bytes] : sides) {
            QDir().mkpath(QFileInfo(folder.Path(inside + "/" + path)).path());
            folder.Put(inside + "/" + path, bytes);
        }
        EXPECT_EQ(PackFolder(folder.Path(name), folder.Path(inside)), 1);
        QDir(folder.Path(inside)).removeRecursively();
        files.append(folder.Path(name));
        return files.last();
    }

    int Batch(const MergeOptions& options = {}) {
        return MergeStandardFiles(Run(), files, rejected, report, outcome, options);
    }
    int Listed(const CString& name = "Result.kvstd") {
        return MergeListedStandards(
            Run(), files, [this, name] { return name.isEmpty() ? name : folder.Path(name); }, resultPath);
    }

    CString Run() const { return folder.Path("run"); }
    QByteArray MergedSide(const CString& path) const { return folder.Get("run/Merge/" + path); }

    // The XML of the batch result.
    CString BatchPath() const { return Run() + "/Merge/" + outcome.fileName; }
    // The XML of the dialog's result, which is unpacked for it.
    CString ListedPath() {
        const CString target = folder.Path("unpacked");
        QDir(target).removeRecursively();
        QDir().mkdir(target);
        EXPECT_EQ(UnpackStandard(resultPath, target), 1);
        return target + resultPath.mid(resultPath.lastIndexOf('/'));
    }

    // "type name" of every check, with a "-" in front of a deleted one.
    static CStringArray ChecksOf(const CString& path) {
        CStringArray found;
        EachCheck(path, [&found](const CXmlElement& check) {
            CString type;
            CString name;
            CString life;
            check.GetAttribute("Type", type);
            check.GetAttribute("Name", name);
            check.GetAttribute("LifeStatus", life);
            found.append((life == "1" ? "-" : "") + type + " " + name);
        });
        return found;
    }

    // The texts of all values of the checks of that name.
    static CStringArray ValuesOf(const CString& path, const CString& checkName) {
        CStringArray found;
        EachCheck(path, [&](const CXmlElement& check) {
            CString name;
            check.GetAttribute("Name", name);
            const CXmlNodeList values = check.SelectNodes(".//Value");
            for (int i = 0; name == checkName && i < values.GetCount(); ++i) {
                CString text;
                values.GetAt(i)->GetText(text);
                found.append(text);
            }
        });
        return found;
    }

    // The numbers of the warnings, in order.
    std::vector<unsigned> WarningTexts() const {
        std::vector<unsigned> texts;
        for (const MergeWarning& warning : outcome.warnings)
            texts.push_back(warning.text);
        return texts;
    }

    TestFolder folder;
    CStringArray files;
    CStringArray rejected;
    CStringArray report;
    MergeOutcome outcome;
    CString resultPath;
    Messages messages;

private:
    template <class Action> static void EachCheck(const CString& path, Action&& action) {
        CXmlDocument document;
        const CXmlElement* root = document.Load(path, false);
        ASSERT_TRUE(root) << qPrintable(path + ": " + document.GetLoadError());
        const CXmlNodeList checks = root->SelectNodes("Check");
        for (int i = 0; i < checks.GetCount(); ++i)
            action(*checks.GetAt(i));
    }
};
