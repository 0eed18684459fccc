#include "shell/KeyStates.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

void Light(const TestFolder& folder, const CString& lamp, const QByteArray& brightness) {
    QDir(folder.Path()).mkdir(lamp);
    folder.Put(lamp + "/brightness", brightness);
}

} // namespace

TEST(KeyStates, ALampThatIsLitIsOn) {
    const TestFolder folder;
    Light(folder, "input3::capslock", "1\n");
    Light(folder, "input3::numlock", "0\n");
    EXPECT_EQ(ReadKeyStates(folder.Path()), (KeyStates{true, false, false}));
}

TEST(KeyStates, OneOfSeveralKeyboardsIsEnough) {
    const TestFolder folder;
    Light(folder, "input3::scrolllock", "0\n");
    Light(folder, "input9::scrolllock", "255\n");
    EXPECT_EQ(ReadKeyStates(folder.Path()), (KeyStates{false, false, true}));
}

TEST(KeyStates, WhatCannotBeReadIsOff) {
    const TestFolder folder;
    EXPECT_EQ(ReadKeyStates(folder.Path()), KeyStates());
    EXPECT_EQ(ReadKeyStates(folder.Path("nowhere")), KeyStates());
}
