// The tool is killed at random moments of a random walk: its files stay whole, nothing is locked, and the
// next start opens all.
#include "platform/FileLock.h"
#include "support/GuiRandom.h"
#include "support/GuiWalkProcess.h"
#include "support/Seeds.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QThread>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

constexpr unsigned DailyKills = 20;
constexpr int LongestWalkMs = 300;
constexpr int LongestSaveUs = 12000; // of what a kill aims at

class KilledTool : public ::testing::Test {
protected:
    KilledTool() {
        RandomWalk::WriteStandards(folder.Path());
        for (const CString& name : Standards())
            known[name] = {DigestOf(LiveTextOfFile(folder.Path(name)))};
    }

    CStringArray Standards() const { return QDir(folder.Path()).entryList({"Walk*.kvstd"}); }
    unsigned Below(unsigned count) { return static_cast<unsigned>(numbers() % count); }

    // What a file may hold from here on: with the first line of a save the new text too, with the last only
    // that.
    void Heed(const CString& line) {
        const CStringArray words = line.split(' ');
        ASSERT_NE(words.first(), "wrong") << line.toStdString();
        if (words.size() != 3)
            return;
        std::set<CString>& digests = known[words[1]];
        if (words[0] == "opened") {
            EXPECT_TRUE(digests.count(words[2])) << "another standard is opened: " << line.toStdString();
        } else {
            if (words[0] == "saved")
                digests.clear();
            digests.insert(words[2]);
        }
    }
    void HeedRest(WalkProcess& run) {
        for (CString line = run.NextLine(1000); !line.isNull(); line = run.NextLine(1000))
            Heed(line);
    }

    void StartAndKill(unsigned seed) {
        WalkProcess run(CString::number(seed), folder.Path());
        CStringArray told;
        const bool isReady = run.WaitUntilReady(told);
        for (const CString& line : told)
            Heed(line);
        ASSERT_TRUE(isReady);
        if (Below(2) == 0)
            QThread::msleep(Below(LongestWalkMs));
        else
            WaitIntoASave(run);
        run.Kill();
        HeedRest(run);
    }

    void WaitIntoASave(WalkProcess& run) {
        for (CString line = run.NextLine(); !line.isNull(); line = run.NextLine()) {
            Heed(line);
            if (line.startsWith("saving ")) {
                QThread::usleep(Below(LongestSaveUs));
                return;
            }
        }
    }

    void ExpectWhole() {
        for (const CString& name : Standards()) {
            const CString text = LiveTextOfFile(folder.Path(name));
            const CString digest = DigestOf(text);
            EXPECT_TRUE(known[name].count(digest))
                << name.toStdString() << " is none of those saved: " << text.left(200).toStdString();
            known[name] = {digest};
            FileLock lock;
            EXPECT_EQ(lock.Take(folder.Path(name)), LockOutcome::Taken) << name.toStdString();
        }
    }

    TestFolder folder;
    std::map<CString, std::set<CString>> known; // the digests that a file may hold
    std::mt19937 numbers{1};
};

} // namespace

TEST_F(KilledTool, EverySavedFileIsWholeAndOpensAgain) {
    const unsigned kills = SeedCount(DailyKills);
    for (unsigned seed = 1; seed <= kills; ++seed) {
        SCOPED_TRACE("kill " + std::to_string(seed));
        StartAndKill(seed);
        ExpectWhole();
        if (HasFailure())
            return;
    }
    WalkProcess last("0", folder.Path());
    CStringArray told;
    EXPECT_TRUE(last.WaitUntilReady(told));
    EXPECT_EQ(told.size(), 3);
    last.Kill();
}
