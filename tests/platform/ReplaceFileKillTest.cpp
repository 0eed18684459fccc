// A save that is killed at any moment leaves the old file or the new one, whole.
#include "platform/ReplaceFile.h"
#include "support/ChildProcess.h"
#include "support/KillAtSyscall.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <ostream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

enum class Target { New, Old, Link, ClosedFolder };
enum class Form { Bytes, Copy };

struct Scenario {
    Target target;
    Form form;
};

std::ostream& operator<<(std::ostream& out, const Scenario& scenario) {
    constexpr const char* Targets[] = {"NewFile", "Overwrite", "ThroughALink", "ClosedFolder"};
    return out << Targets[static_cast<int>(scenario.target)]
               << (scenario.form == Form::Bytes ? "Bytes" : "Copy");
}

const QByteArray OldContent(3000, 'o');
const QByteArray NewContent(300 * 1000, 'n');

class ReplaceFileKill : public ::testing::TestWithParam<Scenario> {
protected:
    bool Is(Target target) const { return GetParam().target == target; }
    CString Name() const { return Is(Target::Link) ? "link.kvstd" : "work/standard.kvstd"; }

    // The folder "work" is the one in which the file lies; the link and the source lie outside it.
    void LayOut() {
        const QByteArray work = QFile::encodeName(folder.Path("work"));
        ::mkdir(work.constData(), 0755);
        ::chmod(work.constData(), 0755);
        QFile::remove(folder.Path("work/standard.kvstd"));
        folder.Put("source.zip", NewContent);
        if (!Is(Target::New))
            folder.Put("work/standard.kvstd", OldContent);
        if (Is(Target::Link))
            QFile::link("work/standard.kvstd", folder.Path("link.kvstd"));
        if (Is(Target::ClosedFolder)) {
            ::chmod(QFile::encodeName(folder.Path("work/standard.kvstd")).constData(), 0666);
            ::chmod(QFile::encodeName(folder.Path("source.zip")).constData(), 0644);
            ::chmod(work.constData(), 0555);
        }
    }

    FileResult Save(const CString& base) const {
        return GetParam().form == Form::Bytes ? ReplaceFile(base + Name(), NewContent)
                                              : ReplaceFileByCopy(base + Name(), base + "source.zip");
    }

    void SaveInChild() const {
        if (Is(Target::ClosedFolder)) {
            if (Save("").ok)
                ::_exit(2); // nothing can be written safely there, so it must not be tried
        } else if (!Save(folder.Path() + "/").ok) {
            ::_exit(3);
        }
    }

    void Inspect(bool finished) {
        const QByteArray content = folder.Get("work/standard.kvstd");
        const bool old = Is(Target::New) ? content.isNull() : content == OldContent;
        const bool whole = content == NewContent;
        ASSERT_TRUE(old || whole) << "after " << content.size() << " bytes";
        ASSERT_TRUE(!finished || (Is(Target::ClosedFolder) ? old : whole));
        leftovers += folder.Names("work").size() > (content.isNull() ? 0 : 1) ? 1 : 0;
        states |= old ? 1 : 2;
        CheckNextSave();
    }

    void CheckNextSave() {
        ::chmod(QFile::encodeName(folder.Path("work")).constData(), 0755);
        const FileResult result = Save(folder.Path() + "/");
        ASSERT_TRUE(result.ok) << result.reason.toStdString();
        ASSERT_EQ(folder.Get("work/standard.kvstd"), NewContent);
        ASSERT_EQ(folder.Names("work"), CStringArray{"standard.kvstd"});
        ASSERT_EQ(QFileInfo(folder.Path("link.kvstd")).isSymLink(), Is(Target::Link));
    }

    TestFolder folder;
    int leftovers = 0;
    int states = 0; // 1: the old file was met, 2: the new one
};

} // namespace

TEST_P(ReplaceFileKill, LeavesTheOldFileOrTheNewOneWhole) {
    KillPlan plan;
    plan.prepare = [this] { LayOut(); };
    if (Is(Target::ClosedFolder))
        plan.enter = [this] { BecomePlainUser(folder.Path()); };
    plan.operation = [this] { SaveInChild(); };
    plan.inspect = [this](bool finished) { Inspect(finished); };
    const int kills = KillAtEverySyscall(plan);
    RecordProperty("kills", kills);
    EXPECT_GT(kills, Is(Target::ClosedFolder) ? 10 : 30);
    EXPECT_EQ(states, Is(Target::ClosedFolder) ? 1 : 3);
    EXPECT_EQ(leftovers > 0, !Is(Target::ClosedFolder)); // or no kill has met the writing
}

INSTANTIATE_TEST_SUITE_P(
    AllScenarios, ReplaceFileKill,
    ::testing::Values(Scenario{Target::New, Form::Bytes}, Scenario{Target::New, Form::Copy},
                      Scenario{Target::Old, Form::Bytes}, Scenario{Target::Old, Form::Copy},
                      Scenario{Target::Link, Form::Bytes}, Scenario{Target::Link, Form::Copy},
                      Scenario{Target::ClosedFolder, Form::Bytes},
                      Scenario{Target::ClosedFolder, Form::Copy}),
    [](const auto& given) { return ::testing::PrintToString(given.param); });
