// A folder in which commands run, in this process: with the texts they print, and a look at what they leave.
#pragma once

#include "support/FixedSession.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

struct CommandRun {
    int code = -1;
    QByteArray out; // standard output
    QByteArray err; // standard error
};

// Runs the words, divided as a shell would by blanks and single quotes, with the language libraries under
// `moduleFolder`. The English texts are in force again afterwards.
CommandRun RunWords(const CString& words, const CString& moduleFolder = RULEWARD_BIN_FOLDER,
                    bool showsProgress = false);

// Compares with the file tests/cli/expected/NAME and tells the first line that differs. With the environment
// variable RULEWARD_RENEW_EXPECTED the file is written instead, and the test fails so that it is looked at.
void ExpectFile(const char* name, const QByteArray& bytes);

// The folder is the current one, "samples" in it leads to the sample standards, and temporary files go to
// "tmp", which every test must leave empty. User and time stand still.
class CliRoom : public ::testing::Test {
protected:
    CliRoom();
    ~CliRoom() override;
    void TearDown() override { EXPECT_EQ(folder.Names("tmp"), CStringArray()); }

    // Runs and expects code and standard error; gives standard output.
    QByteArray Run(const CString& words, int code = 0, const QByteArray& err = {});
    // A standard in plain XML.
    void PutStandard(const CString& name, const CString& checks,
                     const CString& attributes = "Unit=\"0\" AngularUnit=\"0\" Version=\"2026\"");

    const TestFolder folder;
    const FixedSession session{"anna", QDateTime(QDate(2026, 3, 5), QTime(14, 7, 9))};

private:
    CString m_formerFolder;
    QByteArray m_formerTemp;
};

inline constexpr const char* Metric = "'samples/Metric drawings to ISO.kvstd'";
inline constexpr const char* Inch = "'samples/Inch drawings to ASME.kvstd'";
inline constexpr const char* Sheet = "'samples/Sheet metal parts.kvstd'";

// A check of drawings' text heights as it stands in a file: 109, with a range and a correction.
CString NoteFont(const CString& from, const CString& to, const CString& correction, int life = 0);
// A check without parameters.
CString PlainCheck(int type, const CString& name, const CString& inside = {});
