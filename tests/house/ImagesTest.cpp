// Every picture can be drawn.
#include "platform/LanguageLibrary.h"

#include <QDirIterator>
#include <QFileInfo>
#include <gtest/gtest.h>

TEST(Images, EveryPictureOfTheLibraryIsDrawn) {
    const QHash<QString, ImageType> types = {{"bitmap", ImageType::Bitmap},
                                             {"icon", ImageType::Icon},
                                             {"toolbar", ImageType::Toolbar},
                                             {"cursor", ImageType::Cursor}};
    QDirIterator files(QString(RULEWARD_SOURCE_FOLDER) + "/resources/images", {"*.svg"}, QDir::Files,
                       QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        const ImageType type = types.value(file.dir().dirName());
        for (const qreal scale : {1.0, 1.5, 2.0}) {
            const QImage image = LoadImageOf(type, file.completeBaseName().toUInt(), scale);
            ASSERT_FALSE(image.isNull()) << file.filePath().toStdString();
            EXPECT_GE(image.width(), qRound(16 * scale)) << file.filePath().toStdString();
        }
        ++count;
    }
    EXPECT_EQ(count, 226);
}

TEST(Images, UnknownNumbersHaveNoPicture) {
    EXPECT_TRUE(LoadImageOf(ImageType::Bitmap, 4711).isNull());
    EXPECT_TRUE(LoadImageSource(ImageType::Icon, 0).isEmpty());
}
