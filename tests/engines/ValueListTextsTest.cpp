// The language libraries against the value lists: lists are searched by their texts, and the texts of
// pictures become the names of the report's picture files.
#include "engines/EnumEngine.h"
#include "engines/EnumTables.h"
#include "engines/ParameterKinds.h"
#include "platform/LanguageLibrary.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>
#include <vector>

namespace {

class ValueListTexts : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        ASSERT_TRUE(LoadLanguage(RULEWARD_BIN_FOLDER, GetParam()));
        ASSERT_EQ(LoadedLanguage(), GetParam());
    }
    void TearDown() override { LoadLanguage(RULEWARD_BIN_FOLDER, "English"); }
};

std::vector<std::uint32_t> NumbersOf(IdMap map) {
    std::vector<std::uint32_t> numbers;
    for (const IdRun& run : map)
        for (std::uint32_t i = 0; i < run.count; ++i)
            numbers.push_back(run.firstId + i);
    return numbers;
}

std::vector<std::uint32_t> TextNumbersOf(int type) {
    const ValueList& list = ValueListOf(type);
    return list.use == ListUse::Options ? std::vector<std::uint32_t>() : NumbersOf(list.texts);
}

constexpr unsigned CriticalityCount = 4;

// The texts under which pictures are saved.
CStringArray PictureTexts() {
    CStringArray texts;
    for (int type = 0; type < ParameterKindCount; ++type)
        if (ValueListOf(type).use == ListUse::Pictures)
            for (const std::uint32_t id : TextNumbersOf(type))
                texts.append(LoadString(id));
    for (unsigned long value = 0; value < CriticalityCount; ++value) {
        CString text;
        unsigned long icon = 0;
        CEnumEngine().GetCriticalityTextAndIcon(value, text, icon);
        texts.append(text);
    }
    return texts;
}

} // namespace

TEST_P(ValueListTexts, EveryValueHasAText) {
    for (int type = 0; type < ParameterKindCount; ++type)
        for (const std::uint32_t id : TextNumbersOf(type))
            EXPECT_FALSE(LoadString(id).trimmed().isEmpty()) << "string " << id << " of list " << type;
}

TEST_P(ValueListTexts, TextsOfOneListAreDistinct) {
    for (int type = 0; type < ParameterKindCount; ++type) {
        QMap<CString, std::uint32_t> seen;
        for (const std::uint32_t id : TextNumbersOf(type)) {
            const CString text = LoadString(id);
            EXPECT_FALSE(seen.contains(text)) << "string " << id << " of list " << type << " repeats "
                                              << seen.value(text) << ": " << text.toStdString();
            seen.insert(text, id);
        }
    }
}

TEST_P(ValueListTexts, ShortFormsOfLengthUnitsAreDistinct) {
    QSet<CString> seen;
    for (unsigned long unit = 0; unit <= 10; ++unit) {
        CString suffix;
        CEnumEngine().GetUnitSuffix(unit, suffix);
        EXPECT_FALSE(seen.contains(suffix)) << "unit " << unit;
        seen.insert(suffix);
    }
}

TEST_P(ValueListTexts, EveryValueWithAPictureHasOne) {
    for (int type = 0; type < ParameterKindCount; ++type)
        for (const std::uint32_t id : NumbersOf(ValueListOf(type).images))
            EXPECT_FALSE(LoadImageOf(ImageType::Bitmap, id).isNull())
                << "bitmap " << id << " of list " << type;
}

TEST_P(ValueListTexts, EveryCriticalityHasBothPictures) {
    for (unsigned long value = 0; value < CriticalityCount; ++value) {
        CString text;
        unsigned long icon = 0;
        CEnumEngine().GetCriticalityTextAndIcon(value, text, icon);
        EXPECT_FALSE(LoadImageOf(ImageType::Bitmap, icon).isNull()) << "bitmap " << icon;
        GetCriticalityIcon(value, text, icon);
        EXPECT_FALSE(LoadImageOf(ImageType::Bitmap, icon).isNull()) << "bitmap " << icon;
    }
}

// Without regard to case: the files lie beside each other on any file system.
TEST_P(ValueListTexts, PictureTextsAreUniqueOverAllLists) {
    QSet<CString> seen;
    for (const CString& text : PictureTexts()) {
        EXPECT_FALSE(seen.contains(text.toCaseFolded())) << text.toStdString();
        seen.insert(text.toCaseFolded());
    }
    EXPECT_EQ(seen.size(), 53);
}

TEST_P(ValueListTexts, PictureTextsAreValidFileNames) {
    static const QRegularExpression Forbidden(R"([\x00-\x1F\x7F<>:"/\\|?*])");
    static const QRegularExpression Device("^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\..*)?$",
                                           QRegularExpression::CaseInsensitiveOption);
    constexpr int LongestName = 200; // leaves room for an extension in 255 bytes
    for (const CString& text : PictureTexts()) {
        const std::string shown = text.toStdString();
        EXPECT_FALSE(text.isEmpty());
        EXPECT_FALSE(text.contains(Forbidden)) << shown;
        EXPECT_FALSE(text.contains(Device)) << shown;
        EXPECT_EQ(text, text.trimmed()) << shown;
        EXPECT_FALSE(text.startsWith('.') || text.endsWith('.')) << shown;
        EXPECT_LE(text.toUtf8().size(), LongestName) << shown;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, ValueListTexts, testing::Values("English", "German"),
                         [](const auto& language) { return std::string(language.param); });
