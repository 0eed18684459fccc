// The two languages say the same things.
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

struct Message {
    QString source;
    QString translation;
};

QMap<QString, Message> ReadMessages(const QString& language) {
    QFile file(QString(RULEWARD_SOURCE_FOLDER) + "/resources/" + language + "/strings.ts");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QMap<QString, Message> messages;
    QXmlStreamReader xml(&file);
    QString id; // a number, or that of a template and of a control in it
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message") {
            id = xml.attributes().value("id").toString();
            EXPECT_FALSE(messages.contains(id))
                << id.toStdString() << " stands twice in " << language.toStdString();
            messages.insert(id, {});
        } else if (xml.name() == u"source") {
            messages[id].source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            EXPECT_NE(xml.attributes().value("type"), u"unfinished") << id.toStdString();
            messages[id].translation = xml.readElementText();
        }
    }
    return messages;
}

QStringList InsertsOf(const QString& text) {
    static const QRegularExpression insert("%\\d|%d");
    QStringList inserts;
    auto found = insert.globalMatch(text);
    while (found.hasNext())
        inserts.append(found.next().captured());
    inserts.sort();
    return inserts;
}

} // namespace

TEST(Languages, GermanHasEveryText) {
    const QMap<QString, Message> english = ReadMessages("English");
    const QMap<QString, Message> german = ReadMessages("German");
    EXPECT_GE(english.size(), 711);
    EXPECT_EQ(english.keys(), german.keys());
    for (auto message = german.begin(); message != german.end(); ++message)
        EXPECT_FALSE(message->translation.isEmpty()) << message.key().toStdString();
}

TEST(Languages, TranslationsKeepInsertsAndSource) {
    const QMap<QString, Message> english = ReadMessages("English");
    const QMap<QString, Message> german = ReadMessages("German");
    for (auto message = english.begin(); message != english.end(); ++message) {
        EXPECT_EQ(message->source, message->translation) << message.key().toStdString();
        EXPECT_EQ(german[message.key()].source, message->source) << message.key().toStdString();
        EXPECT_EQ(InsertsOf(german[message.key()].translation), InsertsOf(message->translation))
            << message.key().toStdString();
    }
}

TEST(Languages, TextsOfTheStylesheetHoldNoMarkup) {
    for (const char* language : {"English", "German"}) {
        const QMap<QString, Message> messages = ReadMessages(language);
        for (const int id : {1944, 1945, 1946, 1947, 1948, 2394, 2395, 2261, 1907})
            EXPECT_FALSE(messages[QString::number(id)].translation.contains(QRegularExpression("[&<]")))
                << id;
    }
}
