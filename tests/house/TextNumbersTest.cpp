// Every number of a text that the code uses has a text, in every language.
#include "platform/LanguageLibrary.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

// The numbers given straight to LoadString, and those of the constants of the header of numbers.
QMap<unsigned, QString> NumbersInUse() {
    static const QRegularExpression uses("LoadString\\((\\d+)\\)|^constexpr unsigned \\w+ = (\\d+);",
                                         QRegularExpression::MultilineOption);
    QMap<unsigned, QString> numbers;
    QDirIterator files(QString(RULEWARD_SOURCE_FOLDER) + "/src", {"*.h", "*.cpp"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        const bool isNumbers = file.fileName().endsWith("platform/TextNumbers.h");
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        auto found = uses.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext()) {
            const auto match = found.next();
            if (!match.captured(1).isEmpty())
                numbers.insert(match.captured(1).toUInt(), file.fileName());
            else if (isNumbers)
                numbers.insert(match.captured(2).toUInt(), file.fileName());
        }
    }
    return numbers;
}

class TextNumbers : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override { ASSERT_TRUE(LoadLanguage(RULEWARD_BIN_FOLDER, GetParam())); }
    void TearDown() override { LoadLanguage(RULEWARD_BIN_FOLDER, "English"); }
};

} // namespace

TEST_P(TextNumbers, EveryNumberInUseHasAText) {
    const QMap<unsigned, QString> numbers = NumbersInUse();
    EXPECT_GT(numbers.size(), 60);
    for (auto number = numbers.begin(); number != numbers.end(); ++number)
        EXPECT_TRUE(number.key() == 0 || !LoadString(number.key()).isEmpty())
            << number.key() << " in " << number.value().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, TextNumbers, testing::Values("English", "German"));
