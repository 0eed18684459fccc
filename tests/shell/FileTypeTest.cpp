#include "shell/FileType.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

// The user's data folder for the length of a test.
class DataFolder : public TestFolder {
public:
    DataFolder() : m_before(qgetenv("XDG_DATA_HOME")) { qputenv("XDG_DATA_HOME", Path().toUtf8()); }
    ~DataFolder() {
        if (m_before.isNull())
            qunsetenv("XDG_DATA_HOME");
        else
            qputenv("XDG_DATA_HOME", m_before);
    }

private:
    QByteArray m_before;
};

} // namespace

TEST(FileType, TypeProgramAndPictureAreWritten) {
    const DataFolder data;
    ASSERT_TRUE(WriteFileAssociation("/opt/rule ward/AdminModuleu", "<svg/>"));
    EXPECT_TRUE(data.Get("mime/packages/RulewardBuilder.xml").contains("pattern=\"*.kvstd\""));
    const QByteArray entry = data.Get("applications/RulewardBuilder.desktop");
    EXPECT_TRUE(entry.contains("Exec=\"/opt/rule ward/AdminModuleu\" %f\n")) << entry.constData();
    EXPECT_TRUE(entry.contains("MimeType=application/x-ruleward-standard;"));
    EXPECT_EQ(data.Get("icons/hicolor/scalable/mimetypes/application-x-ruleward-standard.svg"), "<svg/>");
}

TEST(FileType, ASecondTimeReplacesTheFirst) {
    const DataFolder data;
    ASSERT_TRUE(WriteFileAssociation("/old/AdminModuleu", "<svg/>"));
    ASSERT_TRUE(WriteFileAssociation("/new/AdminModuleu", "<svg/>"));
    EXPECT_TRUE(data.Get("applications/RulewardBuilder.desktop").contains("\"/new/AdminModuleu\""));
}

TEST(FileType, AFailedStepEndsIt) {
    const DataFolder data;
    data.Put("mime", "a file where the folder should be");
    EXPECT_FALSE(WriteFileAssociation("/opt/AdminModuleu", "<svg/>"));
    EXPECT_EQ(data.Names(), CStringArray({"mime"}));
}
