#include "files/XmlDocument.h"

#include <gtest/gtest.h>
#include <iterator>

namespace {

constexpr const char* LeftOut[] = {"Left0", "Left1", "Left2"};

// What the document holds once it is loaded without the names above.
CString Loaded(const CString& text) {
    CXmlDocument document;
    document.LeaveOut(LeftOut);
    return document.LoadXmlText(text) ? document.GetXmlText() : "refused: " + document.GetLoadError();
}

struct Value {
    const char* read;
    const char* written;
};

// The parser points into the document for a plain value, and makes a copy of any other, which it frees by
// the place of its attribute.
constexpr Value Values[] = {
    {"plain", "plain"},
    {"", ""},
    {"two\r\nlines", "two lines"},
    {"&#13;&#x41;&amp;&lt; and as much again as no short text would hold",
     "&#13;A&amp;&lt; and as much again as no short text would hold"},
};
constexpr int ValueCount = static_cast<int>(std::size(Values));
constexpr int Forms = 2 * ValueCount; // of an attribute: kept or left out, with one of the values

CString Attribute(const char* name, int place, const char* value) {
    return CString(" %1%2=\"%3\"").arg(name).arg(place).arg(value);
}

} // namespace

TEST(XmlLeaveOut, AttributesOfAnyValueAreLeftOutInAnyPlace) {
    for (int mixture = 0; mixture < Forms * Forms * Forms; ++mixture) {
        CString all;
        CString kept;
        for (int place = 0, rest = mixture; place < 3; ++place, rest /= Forms) {
            const Value& value = Values[rest % ValueCount];
            const bool isKept = rest % Forms < ValueCount;
            all += Attribute(isKept ? "Kept" : "Left", place, value.read);
            if (isKept)
                kept += Attribute("Kept", place, value.written);
        }
        ASSERT_EQ(Loaded("<a><b" + all + "/></a>"), "<a><b" + kept + "/></a>") << all.toStdString();
    }
}

TEST(XmlLeaveOut, ElementsGoWithAllThatIsInThem) {
    EXPECT_EQ(Loaded("<a><Left0 c='1' Left1='&#13;x'>d<![CDATA[e]]><Left0>f</Left0><g h='&#13;y'/></Left0>"
                     "<i j='&#13;z'>k<Left2/>l</i></a>"),
              "<a><i j=\"&#13;z\">kl</i></a>");
}

TEST(XmlLeaveOut, RootStaysWhateverItsName) {
    EXPECT_EQ(Loaded("<Left0 Left1='&#13;x' b='&#13;y'>c</Left0>"), "<Left0 b=\"&#13;y\">c</Left0>");
}

TEST(XmlLeaveOut, PrefixOfANameDoesNotCount) {
    EXPECT_EQ(Loaded("<a xmlns:n='urn:n'><b n:Left0='&#13;x' n:c='&#13;y' d='2'/><n:Left1/></a>"),
              "<a xmlns:n=\"urn:n\"><b n:c=\"&#13;y\" d=\"2\"/></a>");
}

TEST(XmlLeaveOut, ManyAttributesOfOneElement) {
    CString all;
    CString kept;
    for (int i = 0; i < XmlLimits::AttributesOfElement - 3; ++i)
        kept += Attribute("k", i, "&#13;z");
    all = Attribute("Left", 0, "&#13;x") + kept + Attribute("Left", 1, "&#13;y") + " Left2='plain'";
    EXPECT_EQ(Loaded("<a" + all + "/>"), "<a" + kept + "/>");
}
