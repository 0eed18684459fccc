#include "files/MadeDocuments.h"

#include "files/XmlGuard.h"

#include <QStringEncoder>

namespace {

constexpr qsizetype Mega = 1024 * 1024;

QByteArray In(const QByteArray& root, const QByteArray& content) {
    return "<" + root + ">" + content + "</" + root + ">";
}

std::function<QByteArray()> Repeated(const char* unit, qsizetype count, const char* root = "Standard") {
    return [=] { return In(root, QByteArray(unit).repeated(count)); };
}

// `count` units with the number of each in the place of "#".
std::function<QByteArray()> Numbered(const char* unit, int count) {
    return [=] {
        const QByteArray pattern(unit);
        const qsizetype place = pattern.indexOf('#');
        QByteArray content;
        for (int i = 0; i < count; ++i)
            content.append(pattern.left(place)).append(QByteArray::number(i)).append(pattern.mid(place + 1));
        return In("Standard", content);
    };
}

// As many units as the limits just let pass: `cost` is what one takes in memory beside its own bytes.
std::function<QByteArray()> ToTheLimit(const QByteArray& unit, qsizetype cost) {
    return [=] {
        const qsizetype byCost = (XmlLimits::Cost - 10'000) / (cost + unit.size());
        const qsizetype bySize = (XmlLimits::Bytes - 100) / unit.size();
        return In("Standard", unit.repeated(std::min(byCost, bySize)));
    };
}

std::function<QByteArray()> LongElements(const char* begin, const char* unit, qsizetype units,
                                         const char* end, int count = 1) {
    return [=] {
        return In("Standard", (QByteArray(begin) + QByteArray(unit).repeated(units) + end).repeated(count));
    };
}

std::function<QByteArray()> Nested(int depth) {
    return [=] { return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth); };
}

// One element with `count` attributes; "#" in a pattern is the number of each.
QByteArray ElementWith(const QByteArray& pattern, int count) {
    QByteArray element = "<b";
    for (int i = 0; i < count; ++i)
        element.append(" ").append(QByteArray(pattern).replace("#", QByteArray::number(i)));
    return element + "/>";
}

// Declarations at every level, and many elements whose prefix is sought among all of them.
QByteArray NamespaceTower() {
    QByteArray tower;
    for (int level = 0; level < 60; ++level) {
        tower.append("<e");
        for (int i = 0; i < 250; ++i)
            tower.append(" xmlns:p" + QByteArray::number(level) + "x" + QByteArray::number(i) + "=\"u\"");
        tower.append(">");
    }
    return tower + QByteArray("<a/>").repeated(400'000) + QByteArray("</e>").repeated(60);
}

QByteArray Utf16(const QByteArray& utf8) {
    QStringEncoder encoder(QStringConverter::Utf16LE);
    return "\xFF\xFE" + QByteArray(encoder(QString::fromUtf8(utf8)));
}

QByteArray CheckOf(const char* type, const QByteArray& content) {
    return QByteArray("<Check Type=\"") + type + "\">" + content + "</Check>";
}

std::vector<MadeDocument> LargeParts() {
    return {
        {"nested-100000", Nested(100'000), "deep"},
        {"nested-1000000", Nested(1'000'000), "deep"},
        {"attributes-100000", [] { return ElementWith("a#=\"\"", 100'000); }, "attributes"},
        {"attribute-10-megabytes", LongElements("<a b=\"", "x", 10 * Mega, "\"/>"), "long"},
        {"attribute-45-megabytes", LongElements("<a b=\"", "x", 45 * Mega, "\"/>"), "long"},
        {"attribute-10-megabytes-unclosed", [] { return "<a b=\"" + QByteArray(10 * Mega, 'x'); }, "long"},
        {"attributes-4-megabytes", LongElements("<a b=\"", "x", 4'190'000, "\"/>", 8), "opened"},
        {"attributes-of-references", LongElements("<a b=\"", "&#10;", 800'000, "\"/>", 8), "opened"},
        {"text-50-megabytes", LongElements("", "x", 51'000'000, ""), "large"},
        {"text-45-megabytes", LongElements("", "x", 45 * Mega, ""), "damaged"},
        {"texts-9-megabytes", LongElements("<a>", "x", 9'900'000, "</a>", 4), "opened"},
        {"texts-of-brackets", LongElements("<a>", "]", 9'900'000, "</a>", 4), "opened"},
        {"texts-of-references", LongElements("<a>", "&amp;", 2'400'000, "</a>", 4), "opened"},
        {"texts-of-line-ends", LongElements("<a>", "\r\n", 4'900'000, "</a>", 4), "opened"},
        {"text-of-character-references", Repeated("&#9;", 11'000'000), "damaged"},
        {"text-of-undeclared-entities", Repeated("&a;", 13'000'000), "damaged"},
        {"text-of-brackets-with-blanks", Repeated("< ", 20'000'000), "damaged"},
        {"comment-45-megabytes", LongElements("<!--", "x", 45 * Mega, "-->"), "damaged"},
        {"comment-of-hyphens", LongElements("<!--", "- ", 20 * Mega, "-->"), "damaged"},
        {"instruction-45-megabytes", LongElements("<?a ", "x", 45 * Mega, "?>"), "damaged"},
        {"name-40-megabytes", [] { return "<" + QByteArray(40 * Mega, 'a') + "/>"; }, "damaged"},
        {"blanks-in-tag", LongElements("<a", " ", 40 * Mega, "/>"), "damaged"},
        {"brackets-only", [] { return QByteArray(40 * Mega, '<'); }, "damaged"},
        {"zeros", [] { return QByteArray(40 * Mega, '\0'); }, "bytes"},
        {"high-bytes", [] { return QByteArray(40 * Mega, '\xFF'); }, "bytes"},
        {"white-space-40-megabytes", [] { return QByteArray(40 * Mega, ' '); }, "damaged"},
    };
}

std::vector<MadeDocument> ManyParts() {
    return {
        {"elements-5000000", Repeated("<a/>", 5'000'000), "content"},
        {"elements-with-text-3000000", Repeated("<a>x</a>", 3'000'000), "content"},
        {"comments-5000000", Repeated("<!---->", 5'000'000), "content"},
        {"instructions-5000000", Repeated("<?a?>", 5'000'000), "content"},
        {"cdata-3000000", Repeated("<![CDATA[x]]>", 3'000'000), "content"},
        {"end-tags-10000000", Repeated("</a>", 10'000'000), "damaged"},
        {"undeclared-prefixes", Repeated("<p:a/>", 700'000), "damaged"},
        {"duplicate-attributes", Repeated("<a b=\"\" b=\"\"/>", 200'000), "damaged"},
        {"unique-elements", Numbered("<n#/>", 500'000), "names"},
        {"unique-attributes", Numbered("<a n#=\"\"/>", 300'000), "names"},
        {"unique-instructions", Numbered("<?n# ?>", 500'000), "names"},
        {"unique-ids", Numbered("<a xml:id=\"i#\"/>", 300'000), "opened"},
        {"namespace-tower", NamespaceTower, "names"},
        {"duplicate-attributes-at-end",
         [] { return In("a", (ElementWith("c#=\"\"", 250).chopped(2) + " c0=\"\"/>").repeated(2'000)); },
         "damaged"},
        {"limit-elements", ToTheLimit("<a/>", 128), "opened"},
        {"limit-elements-with-text", ToTheLimit("<a>x</a>", 256), "opened"},
        {"limit-elements-with-long-text", ToTheLimit("<a>twenty letters here.</a>", 256 + 56), "opened"},
        {"limit-texts-that-grow", ToTheLimit("<a>sixteen letters.&#9;and as many more</a>", 256 + 90),
         "opened"},
        {"limit-comments", ToTheLimit("<!---->", 160), "opened"},
        {"limit-instructions", ToTheLimit("<?a b?>", 160), "opened"},
        {"limit-cdata", ToTheLimit("<a><![CDATA[twenty letters here.]]></a>", 288 + 86), "opened"},
        {"limit-attributes", ToTheLimit("<a b=\"\"/>", 368), "opened"},
        {"limit-attributes-of-element", ToTheLimit(ElementWith("a#=\"\"", 256), 128 + 256 * 240), "opened"},
        {"limit-prefixes",
         [] { return ToTheLimit("<x:a x:b=\"\"/>", 368)().replace(0, 9, "<Standard xmlns:x=\"u:x\""); },
         "opened"},
    };
}

std::vector<MadeDocument> Encoded() {
    return {
        {"utf16-that-grows", [] { return Utf16(LongElements("<a>", "\u4e2d", 4'000'000, "</a>", 5)()); },
         "large"},
        {"utf16-large", [] { return Utf16(LongElements("<a>", "\u4e2d", 2'900'000, "</a>", 5)()); },
         "opened"},
        {"utf8-mark-large", [] { return "\xEF\xBB\xBF" + LongElements("<a>", "x", 9'900'000, "</a>", 4)(); },
         "opened"},
        {"latin1-that-grows",
         [] {
             return "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" +
                    LongElements("<a>", "\xE9", 4'800'000, "</a>", 8)();
         },
         "large"},
        {"latin1-elements",
         [] {
             return "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" +
                    Repeated("<a>\xE9\xE9\xE9\xE9\xE9\xE9\xE9\xE9</a>", 1'000'000)();
         },
         "content"},
        {"shift-jis-large",
         [] {
             return "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?>" +
                    LongElements("<a>", "\x95\x5C", 2'900'000, "</a>", 5)();
         },
         "opened"},
        {"gb18030-cut-at-end",
         [] {
             return "<?xml version=\"1.0\" encoding=\"GB18030\"?><a>" +
                    QByteArray("\x81\x30\x81\x30").repeated(99'999) + "\x81";
         },
         "bytes"},
    };
}

// A check with as many units inside as the limits just let pass.
std::function<QByteArray()> CheckToTheLimit(const char* type, const char* unit, qsizetype cost) {
    return [=] {
        QByteArray document = ToTheLimit(unit, cost)();
        const QByteArray name = QByteArray("<Check Type=\"") + type + "\">";
        return document.insert(qstrlen("<Standard>"), name)
            .insert(document.size() - qstrlen("</Standard>"), "</Check>");
    };
}

std::vector<MadeDocument> Standards() {
    const char* row =
        "<Check><Parameter Type=\"1724\"><Operator>2</Operator><Value>x</Value></Parameter></Check>";
    const char* hole =
        "<Check><Parameter Type=\"1926\"><Operator>2</Operator><Value>x</Value></Parameter></Check>";
    constexpr qsizetype RowCost = 6 * 128 + 240 + 1700 + 112;
    return {
        {"checks-10000-of-a-type", Repeated("<Check Type=\"101\"/>", 10'000), "opened"},
        {"checks-10000-unknown", Numbered("<Check Type=\"9#\"/>", 10'000), "opened"},
        {"checks-100000", Repeated("<Check Type=\"101\"/>", 100'000), "content"},
        {"limit-checks", ToTheLimit("<Check Type=\"108\"/>", 5600 + 368), "opened"},
        {"limit-rows", CheckToTheLimit("105", row, RowCost), "opened"},
        {"limit-rows-of-holes", CheckToTheLimit("310", hole, RowCost), "opened"},
        {"limit-parameters-of-other-types", CheckToTheLimit("108", "<Parameter Type=\"1\"/>", 368), "opened"},
        {"limit-parameters-of-other-names", CheckToTheLimit("108", "<Parameter Name=\"x\"/>", 368), "opened"},
        {"limit-corrections", CheckToTheLimit("108", "<Parameter Type=\"1\" CorrectionValue=\"x\"/>", 608),
         "opened"},
        {"parameters-100000",
         [] {
             return In("Standard", CheckOf("312", QByteArray("<Parameter Type=\"1742\"><Operator>2</Operator>"
                                                             "<Value>2</Value></Parameter>")
                                                      .repeated(100'000)));
         },
         "opened"},
        {"limit-values",
         [] {
             QByteArray document = CheckToTheLimit("104", "<Value>fifteen letters</Value>", 368)();
             const qsizetype begin = document.indexOf("<Value>");
             document.insert(begin, "<Parameter Type=\"1724\"><Operator>2</Operator>");
             return document.replace("</Check>", "</Parameter></Check>");
         },
         "opened"},
    };
}

} // namespace

const std::vector<MadeDocument>& MadeDocuments() {
    static const std::vector<MadeDocument> documents = [] {
        std::vector<MadeDocument> all;
        for (const auto& family : {LargeParts(), ManyParts(), Encoded(), Standards()})
            all.insert(all.end(), family.begin(), family.end());
        return all;
    }();
    return documents;
}
