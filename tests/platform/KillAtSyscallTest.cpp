#include "support/KillAtSyscall.h"

#include "support/TestFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <set>
#include <unistd.h>

namespace {

void MakeThree(const TestFolder& folder) {
    for (const char* name : {"a", "b", "c"})
        ::close(::open(QFile::encodeName(folder.Path(name)).constData(), O_CREAT | O_WRONLY, 0600));
}

} // namespace

TEST(KillAtSyscall, EveryStateOfAnOperationIsMet) {
    const TestFolder folder;
    std::set<qsizetype> seen;
    int finished = 0;
    KillPlan plan;
    plan.prepare = [&] {
        for (const CString& name : folder.Names())
            QFile::remove(folder.Path(name));
    };
    plan.operation = [&] { MakeThree(folder); };
    plan.inspect = [&](bool whole) {
        seen.insert(folder.Names().size());
        finished += whole ? 1 : 0;
    };
    EXPECT_GE(KillAtEverySyscall(plan), 12); // three files, two calls each, before and after
    EXPECT_EQ(seen, (std::set<qsizetype>{0, 1, 2, 3}));
    EXPECT_EQ(finished, 1);
}

TEST(KillAtSyscall, AChildThatFailsByItselfIsTold) {
    KillPlan plan;
    plan.prepare = [] {};
    plan.operation = [] { ::_exit(3); };
    plan.inspect = [](bool) {};
    EXPECT_EQ(KillAtEverySyscall(plan), -1);
}
