#include "fuzz/XmlProperty.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

// Everything that the fuzzer has found worth keeping, and the committed documents.
TEST(XmlReplay, WhatWasFoundByChanceHoldsStill) {
    XmlRoom room;
    for (const char* folder : {"/fuzz/corpus/xml", "/tests/corpus/documents"}) {
        const QDir corpus(CString(RULEWARD_SOURCE_FOLDER) + folder);
        const CStringArray names = corpus.entryList(QDir::Files);
        EXPECT_GT(names.size(), 50) << folder;
        for (const CString& name : names) {
            QFile file(corpus.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_EQ(room.Try(file.readAll()), "") << name.toStdString();
        }
    }
}
