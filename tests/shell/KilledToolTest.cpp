// The tool is killed at random moments of a random walk: its files stay whole, nothing is locked, and the
// next start opens all.
#include "platform/FileLock.h"
#include "support/GuiRandom.h"
#include "support/GuiWalkProcess.h"
#include "support/Seeds.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QThread>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

constexpr unsigned DailyKills = 20;
constexpr unsigned MostCommands = 12; // of a run, before the one in which it may be killed

// How long something took the last time. Kills are aimed at all of it, on a machine of any speed.
class Pace {
public:
    explicit Pace(unsigned firstGuessUs) : m_lastUs(firstGuessUs) {}

    void Begin() { m_timer.start(); }
    void End() {
        if (m_timer.isValid())
            m_lastUs = static_cast<unsigned>(m_timer.nsecsElapsed() / 1000) + 1;
        m_timer.invalidate();
    }
    unsigned LastUs() const { return m_lastUs; }

private:
    unsigned m_lastUs;
    QElapsedTimer m_timer;
};

class KilledTool : public ::testing::Test {
protected:
    KilledTool() {
        RandomWalk::WriteStandards(folder.Path());
        for (const CString& name : Standards())
            Heed("saved " + name + " " + DigestOf(LiveTextOfFile(folder.Path(name))));
    }

    CStringArray Standards() const { return QDir(folder.Path()).entryList({"Walk*.kvstd"}); }
    unsigned Below(unsigned count) { return static_cast<unsigned>(numbers() % count); }

    // What a file may hold from here on: with the first line of a save the new text too, with the last only
    // that.
    void Heed(const CString& line) {
        const CStringArray words = line.split(' ');
        ASSERT_FALSE(line.startsWith("wrong ")) << line.toStdString();
        commands += line == "done" ? 1 : 0;
        if (words.size() != 3)
            return;
        std::set<CString>& digests = known[words[1]];
        if (words[0] == "opened") {
            EXPECT_TRUE(digests.count(words[2])) << "another standard is opened: " << line.toStdString();
        } else {
            const bool isSaving = words[0] == "saving";
            coming = isSaving ? words[2] : CString();
            if (!isSaving) {
                digests.clear();
                standing.insert(words[1]);
            }
            digests.insert(words[2]);
        }
    }

    // A line while the tool runs; a null text where it has ended.
    CString Hear(WalkProcess& run) {
        const CString line = run.NextLine();
        if (line.startsWith("saving ")) {
            save.Begin();
        } else if (line.startsWith("saved ")) {
            save.End();
        } else if (line == "done") {
            command.End();
            command.Begin();
        }
        Heed(line);
        return line;
    }
    void HearUntil(WalkProcess& run, const CString& start) {
        for (CString line = Hear(run); !line.isNull() && !line.startsWith(start); line = Hear(run)) {
        }
    }

    void ExpectAllToOpen(WalkProcess& run) {
        const qsizetype standards = Standards().size();
        CStringArray told;
        const bool isReady = run.WaitUntilReady(told);
        for (const CString& line : told)
            Heed(line);
        ASSERT_TRUE(isReady) << "the tool does not start";
        EXPECT_EQ(told.size(), standards) << told.join('\n').toStdString();
    }

    void StartAndKill(unsigned seed) {
        WalkProcess run(CString::number(seed), folder.Path());
        ExpectAllToOpen(run);
        if (HasFailure())
            return;
        command.Begin();
        for (unsigned left = Below(MostCommands); left > 0; --left)
            HearUntil(run, "done");
        const bool isAimedAtSave = Below(2) == 0;
        if (isAimedAtSave)
            HearUntil(run, "saving ");
        QThread::usleep(Below((isAimedAtSave ? save : command).LastUs()));
        EXPECT_TRUE(run.Kill()) << "the tool has ended by itself";
        for (CString line = run.NextLine(); !line.isNull(); line = run.NextLine())
            Heed(line);
        killsInSaves += coming.isEmpty() ? 0 : 1;
    }

    void ExpectWhole() {
        const CStringArray names = Standards();
        for (const CString& name : names) {
            const CString text = LiveTextOfFile(folder.Path(name));
            const CString digest = DigestOf(text);
            EXPECT_TRUE(known[name].count(digest))
                << name.toStdString() << " is none of those saved: " << text.left(200).toStdString();
            killsBehindSaves += known[name].size() > 1 && digest == coming ? 1 : 0;
            known[name] = {digest};
            FileLock lock;
            EXPECT_EQ(lock.Take(folder.Path(name)), LockOutcome::Taken) << name.toStdString();
        }
        for (const CString& name : standing)
            EXPECT_TRUE(names.contains(name)) << name.toStdString() << " is gone";
        standing.insert(names.begin(), names.end());
        coming.clear();
    }

    TestFolder folder;
    std::map<CString, std::set<CString>> known; // the digests that a file may hold
    std::set<CString> standing;                 // the files that must be there
    Pace command{20000}, save{60000};
    CString coming;                             // the digest of the save in progress, if any
    int killsInSaves = 0, killsBehindSaves = 0; // the second: with the new file in place already
    int commands = 0;
    std::mt19937 numbers{FirstSeed()};
};

} // namespace

TEST_F(KilledTool, EverySavedFileIsWholeAndOpensAgain) {
    const unsigned kills = SeedCount(DailyKills);
    for (unsigned kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill + 1));
        StartAndKill(FirstSeed() + kill);
        ExpectWhole();
        if (HasFailure())
            return;
    }
    EXPECT_GT(killsInSaves, 0);
    RecordProperty("KillsInSaves", killsInSaves);
    RecordProperty("KillsBehindSaves", killsBehindSaves);
    RecordProperty("Commands", commands);
    WalkProcess last("0", folder.Path());
    ExpectAllToOpen(last);
}
