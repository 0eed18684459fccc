// Every text that the fuzzer found worth keeping.
#include "fuzz/ValueTextProperty.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

TEST(ValueTextReplay, EveryKeptTextHoldsItsProperties) {
    const QDir folder(RULEWARD_SOURCE_FOLDER "/fuzz/corpus/value-text");
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    ASSERT_GT(names.size(), 100);
    for (const CString& name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(ValueTextProperty::Try(file.readAll()), "") << name.toStdString();
    }
}
