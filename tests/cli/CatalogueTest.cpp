// The catalogue of checks, as text and as JSON.
#include "cli/CliRoom.h"

#include "model/CheckTypes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <set>

namespace {

class Catalogue : public CliRoom {};

} // namespace

TEST_F(Catalogue, Text) {
    ExpectFile("catalogue.txt", Run("catalogue"));
    ExpectFile("catalogue-german.txt", Run("--language German catalogue"));
}

TEST_F(Catalogue, Json) {
    ExpectFile("catalogue.json", Run("catalogue --json"));
}

TEST_F(Catalogue, NoTextIsMissing) {
    for (const char* language : {"English", "German"}) {
        const QByteArray text = Run(CString("--language %1 catalogue").arg(language));
        EXPECT_FALSE(text.contains("one of\n"));
        EXPECT_FALSE(text.contains(", ,"));
        EXPECT_FALSE(text.contains("of: ,"));
    }
}

TEST_F(Catalogue, EveryTypeThatStandsOnAPageIsThereOnce) {
    std::set<int> types;
    const QJsonArray groups = QJsonDocument::fromJson(Run("catalogue --json")).object()["groups"].toArray();
    for (const QJsonValue& group : groups) {
        const QJsonArray checks = group.toObject()["checks"].toArray();
        for (const QJsonValue& check : checks) {
            const int type = check.toObject()["type"].toInt();
            EXPECT_TRUE(types.insert(type).second) << type;
            EXPECT_TRUE(FindCheckType(type)) << type;
        }
    }
    EXPECT_GT(types.size(), 50u);
}
