// A save of a whole standard, from its checks to the packed file: killed at any moment, it leaves the old
// standard or the new one, whole, and the next save works.
#include "files/Packing.h"
#include "support/ChildProcess.h"
#include "support/FilledStandard.h"
#include "support/KillAtSyscall.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <ostream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int SavesAgainEvery = 4; // a save costs more than all else

enum class Target { New, Old, Link, ClosedFolder };

std::ostream& operator<<(std::ostream& out, Target target) {
    constexpr const char* Names[] = {"NewFile", "Overwrite", "ThroughALink", "ClosedFolder"};
    return out << Names[static_cast<int>(target)];
}

// "target" holds the standard, "work" the unpacked one; an archive on its way lies beside "work".
class PackKill : public ::testing::TestWithParam<Target> {
protected:
    PackKill() {
        FillStandard(standard);
        Prepare("");
        EXPECT_TRUE(Save(folder.Path() + "/", "wanted.kvstd"));
        newBytes = folder.Get("wanted.kvstd");
        QFile::remove(folder.Path("wanted.kvstd"));
    }

    bool Is(Target target) const { return GetParam() == target; }
    CString Name() const { return Is(Target::Link) ? "link.kvstd" : "target/standard.kvstd"; }
    void Mode(const CString& name, mode_t mode) const {
        ::chmod(QFile::encodeName(folder.Path(name)).constData(), mode);
    }

    // The folders of a fresh session.
    void Prepare(const QByteArray& old) {
        for (const char* name : {"target", "work"}) {
            Mode(name, 0755);
            QDir(folder.Path(name)).removeRecursively();
        }
        for (const CString& name : folder.Names())
            QFile::remove(folder.Path(name));
        QDir().mkpath(folder.Path("work/122/A macro"));
        QDir().mkdir(folder.Path("target"));
        folder.Put("work/122/A macro/Macro.kvp", QByteArray(5000, 'm'));
        if (!old.isEmpty())
            folder.Put("target/standard.kvstd", old);
        if (Is(Target::Link))
            QFile::link("target/standard.kvstd", folder.Path("link.kvstd"));
    }

    // For the plain user, who may write the file and not the folder in which it lies.
    void Close() {
        Mode("", 0777);
        for (const char* name : {"work", "work/122", "work/122/A macro"})
            Mode(name, 0777);
        Mode("target/standard.kvstd", 0666);
        Mode("target", 0555);
    }

    bool Save(const CString& base, const CString& name) {
        standard.SaveToFile(base + "work/standard.kvstd");
        return PackFolder(base + name, base + "work") == 1;
    }

    void Inspect(bool finished) {
        const QByteArray content = folder.Get("target/standard.kvstd");
        const bool isOld = content == (Is(Target::New) ? QByteArray() : OldBytes);
        const bool isNew = content == newBytes;
        ASSERT_TRUE(isOld || isNew) << "after " << content.size() << " bytes";
        ASSERT_TRUE(!finished || (Is(Target::ClosedFolder) ? isOld : isNew));
        states |= isOld ? 1 : 2;
        if (finished || ++inspections % SavesAgainEvery == 0)
            CheckNextSave();
    }

    // By the same user, whose leftovers it clears away.
    void CheckNextSave() {
        Mode("target", 0777);
        if (Is(Target::ClosedFolder))
            ASSERT_EQ(RunInChild([this] {
                          BecomePlainUser(folder.Path());
                          return CString(Save("", Name()) ? "saved" : "failed");
                      }),
                      "saved");
        else
            ASSERT_TRUE(Save(folder.Path() + "/", Name()));
        ASSERT_TRUE(folder.Get("target/standard.kvstd") == newBytes);
        ASSERT_EQ(folder.Names("target"), CStringArray{"standard.kvstd"});
        ASSERT_EQ(QFileInfo(folder.Path("link.kvstd")).isSymLink(), Is(Target::Link));
    }

    const TestFolder folder;
    CStandard standard;
    const QByteArray OldBytes = QByteArray(3000, 'o');
    QByteArray newBytes;
    int inspections = 0;
    int states = 0; // 1: the old standard was met, 2: the new one
};

} // namespace

TEST_P(PackKill, LeavesTheOldStandardOrTheNewOneWhole) {
    KillPlan plan;
    plan.prepare = [this] {
        Prepare(Is(Target::New) ? QByteArray() : OldBytes);
        if (Is(Target::ClosedFolder))
            Close();
    };
    if (Is(Target::ClosedFolder))
        plan.enter = [this] { BecomePlainUser(folder.Path()); };
    plan.operation = [this] {
        const bool isClosed = Is(Target::ClosedFolder);
        if (Save(isClosed ? "" : folder.Path() + "/", Name()) == isClosed)
            ::_exit(2); // in a closed folder nothing can be written safely, so it must not be tried
    };
    plan.inspect = [this](bool finished) { Inspect(finished); };
    const int kills = KillAtEverySyscall(plan);
    RecordProperty("kills", kills);
    EXPECT_GT(kills, 100);
    EXPECT_EQ(states, Is(Target::ClosedFolder) ? 1 : 3);
}

INSTANTIATE_TEST_SUITE_P(AllTargets, PackKill,
                         ::testing::Values(Target::New, Target::Old, Target::Link, Target::ClosedFolder),
                         [](const auto& given) { return ::testing::PrintToString(given.param); });
