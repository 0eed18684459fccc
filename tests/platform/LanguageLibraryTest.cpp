#include "platform/LanguageLibrary.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

// A folder of a program with language libraries of its own; the true ones are back in force afterwards.
class LanguageLibraryTest : public ::testing::Test {
protected:
    ~LanguageLibraryTest() override { LoadLanguage(RULEWARD_BIN_FOLDER, "English"); }

    static QByteArray Pack(const CString& language) {
        QFile file(CString(RULEWARD_BIN_FOLDER) + "/Lang/" + language + "/Rulewardresu.rcc");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void Install(const CString& folderName, const QByteArray& pack) const {
        QDir(folder.Path()).mkpath("Lang/" + folderName);
        folder.Put("Lang/" + folderName + "/new", pack);
        // A pack in use is mapped into memory, so that it is replaced by a rename only.
        QFile::remove(folder.Path("Lang/" + folderName + "/Rulewardresu.rcc"));
        QFile::rename(folder.Path("Lang/" + folderName + "/new"),
                      folder.Path("Lang/" + folderName + "/Rulewardresu.rcc"));
    }
    bool Load(const CString& language) const { return LoadLanguage(folder.Path(), language); }

    TestFolder folder;
};

// A pack that rcc made of the one text 7, "sieben".
constexpr char OneGermanText[] =
    "cXJlcwAAAAMAAACdAAAAGAAAAHEAAAAAAAAAVTy4ZBjK75yVzSEcv2Chvd2nAAAABWRlX0RFQgAAAAgAAAA3AAAAAG"
    "kAAAAiAwAAAAwAcwBpAGUAYgBlAG4IAAAAAAYAAAABNwcAAAAAAYgAAAACAQEABgTck34ARwBlAHIAbQBhAG4ACgBB"
    "Ml0AcwB0AHIAaQBuAGcAcwAuAHEAbQAAAAAAAgAAAAEAAAABAAAAAAAAAAAAAAAAAAIAAAABAAAAAgAAAAAAAAAAAA"
    "AAEgAAAAAAAQAAAAAAAAGh/TYddg==";

constexpr unsigned Any = 1632; // "Any", in German "Beliebig"

} // namespace

TEST_F(LanguageLibraryTest, TheFolderIsFoundInAnyCase) {
    Install("GERMAN", {});
    Install("english", {});
    const CString lang = folder.Path("Lang");
    EXPECT_EQ(ResolveLanguageLibrary(folder.Path(), "german"), lang + "/GERMAN/Rulewardresu.rcc");
    EXPECT_EQ(ResolveLanguageLibrary(folder.Path(), "English"), lang + "/english/Rulewardresu.rcc");
}

TEST_F(LanguageLibraryTest, ALanguageWithoutFolderIsTakenFromEnglish) {
    Install("English", {});
    const CString english = folder.Path("Lang/English/Rulewardresu.rcc");
    for (const CString& language : {CString("French"), CString(), CString(".."), CString("../Lang")})
        EXPECT_EQ(ResolveLanguageLibrary(folder.Path(), language), english) << language.toStdString();
}

TEST_F(LanguageLibraryTest, WithoutAnyFolderThePathIsThatOfEnglish) {
    EXPECT_EQ(ResolveLanguageLibrary(folder.Path(), "French"), folder.Path("Lang/english/Rulewardresu.rcc"));
    EXPECT_FALSE(Load("French"));
}

TEST_F(LanguageLibraryTest, TheUsersLanguageLiesOverEnglish) {
    Install("English", Pack("English"));
    Install("German", Pack("German"));
    ASSERT_TRUE(Load("English"));
    EXPECT_EQ(LoadedLanguage(), "English");
    EXPECT_EQ(LoadString(Any), "Any");
    ASSERT_TRUE(Load("German"));
    EXPECT_EQ(LoadedLanguage(), "German");
    EXPECT_EQ(LoadString(Any), "Beliebig");
}

TEST_F(LanguageLibraryTest, APackIsReadWhateverTheCaseOfItsFolder) {
    Install("ENGLISH", Pack("English"));
    Install("german", Pack("German"));
    ASSERT_TRUE(Load("German"));
    EXPECT_EQ(LoadString(Any), "Beliebig");
    ASSERT_TRUE(Load("English"));
    EXPECT_EQ(LoadString(Any), "Any");
}

TEST_F(LanguageLibraryTest, ALanguageWithoutATextOrPictureShowsEnglish) {
    Install("English", Pack("English"));
    Install("German", QByteArray::fromBase64(OneGermanText));
    ASSERT_TRUE(Load("German"));
    EXPECT_EQ(LoadedLanguage(), "German");
    EXPECT_EQ(LoadString(7), "sieben");
    EXPECT_EQ(LoadString(Any), "Any");
    const QByteArray picture = LoadImageSource(ImageType::Bitmap, 1175);
    ASSERT_TRUE(Load("English"));
    EXPECT_EQ(LoadImageSource(ImageType::Bitmap, 1175), picture);
}

TEST_F(LanguageLibraryTest, AMissingPackOfTheUsersLanguageShowsEnglish) {
    Install("English", Pack("English"));
    QDir(folder.Path()).mkpath("Lang/German");
    ASSERT_TRUE(Load("German"));
    EXPECT_EQ(LoadedLanguage(), "English");
    EXPECT_EQ(LoadString(Any), "Any");
}

TEST_F(LanguageLibraryTest, AMissingOrGarbageEnglishPackIsToldAndNothingIsInForce) {
    EXPECT_FALSE(Load("English"));
    for (const QByteArray& pack : {QByteArray(), QByteArray("qres"), QByteArray(5000, 'x'),
                                   "qres" + QByteArray(5000, '\0'), "qres" + QByteArray(5000, '\xff')}) {
        Install("English", pack);
        EXPECT_FALSE(Load("English")) << pack.size();
        EXPECT_EQ(LoadString(Any), "");
        EXPECT_EQ(LoadedLanguage(), "");
        EXPECT_TRUE(LoadImageSource(ImageType::Bitmap, 1).isEmpty());
    }
}

TEST_F(LanguageLibraryTest, ATruncatedPackIsRefusedAtEveryLength) {
    const QByteArray whole = Pack("English");
    ASSERT_FALSE(whole.isEmpty());
    for (qsizetype length = 0; length < whole.size(); length += length < whole.size() - 3000 ? 4001 : 7) {
        Install("English", whole.left(length));
        EXPECT_FALSE(Load("English")) << length << " of " << whole.size();
    }
    Install("English", whole);
    EXPECT_TRUE(Load("English"));
}

TEST_F(LanguageLibraryTest, AnUnknownNumberGivesTheEmptyTextAndNoPicture) {
    EXPECT_EQ(LoadString(0), "");
    EXPECT_EQ(LoadString(4000000000U), "");
    EXPECT_TRUE(LoadImageSource(ImageType::Icon, 4000000000U).isEmpty());
    EXPECT_TRUE(LoadImageOf(ImageType::Icon, 4000000000U).isNull());
}
