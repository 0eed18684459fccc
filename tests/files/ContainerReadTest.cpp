#include "platform/LanguageLibrary.h"
#include "support/StandardText.h"

#include <gtest/gtest.h>

namespace {

struct Container {
    Container(int type, const CString& attributes, const CString& inside) {
        ReadText(
            CString("<Standard><Check Type='%1' %2>%3</Check></Standard>").arg(type).arg(attributes, inside),
            standard);
    }
    CCheck& Check() const { return *AllOf(standard).at(0); }

    CStandard standard;
};

// A custom property with a name.
CString Property(const CString& attributes, const CString& name) {
    return "<Check " + attributes + "><Parameter Type='1724'><Operator>3</Operator><Value>" + name +
           "</Value></Parameter></Check>";
}

} // namespace

TEST(ContainerRead, ChildrenAreOfTheFixedTypeWhateverTheFileSays) {
    const Container read(105, "", Property("Type='101' LifeStatus='1' Name='own'", "Material"));
    ASSERT_TRUE(dynamic_cast<CCheckManager*>(&read.Check()));
    ASSERT_EQ(read.Check().Children.Count, 1);
    const CCheck& child = *read.Check().Children[0];
    EXPECT_EQ(child.Type, 104);
    EXPECT_EQ(child.LifeStatus, LifeInForce);
    EXPECT_EQ(child.Name, "own");
    EXPECT_EQ(*child.GetStringParameter(1724)->Values[0], "Material");
}

TEST(ContainerRead, NameIsThatOfTheLibrary) {
    EXPECT_EQ(Container(105, "Name='own'", "").Check().Name, LoadString(1723));
}

TEST(ContainerRead, ChildWithoutValueIsNotKept) {
    const Container read(
        105, "",
        Property("", "A") + "<Check/>" +
            "<Check><Parameter Type='1724'><Operator>3</Operator></Parameter></Check>" +
            "<Check><Parameter Type='1726'><Operator>3</Operator><Value>x</Value></Parameter></Check>" +
            Property("", ""));
    ASSERT_EQ(read.Check().Children.Count, 2) << "an empty text is a value";
    EXPECT_EQ(*read.Check().Children[1]->GetStringParameter(1724)->Values[0], "");
}

TEST(ContainerRead, CriticalityIsItsOwnAndOneWhereMissing) {
    const Container read(105, "Criticality='3'", Property("", "A") + Property("Criticality='0'", "B"));
    EXPECT_EQ(read.Check().Criticality, 3u);
    EXPECT_EQ(read.Check().Children[0]->Criticality, 1u);
    EXPECT_EQ(read.Check().Children[1]->Criticality, 0u);
    EXPECT_EQ(Container(105, "", "").Check().Criticality, 1u);
    EXPECT_EQ(Container(105, "Criticality=''", "").Check().Criticality, 1u);
}

TEST(ContainerRead, FileLocationsReadTheirOwnParameters) {
    const Container read(
        127, "LifeStatus='1'",
        "<Check><Parameter Type='2473'><Operator>3</Operator><Value>4</Value></Parameter></Check>"
        "<Parameter Type='2478'><Operator>3</Operator><Value>9</Value></Parameter>");
    EXPECT_EQ(read.Check().LifeStatus, LifeDeleted);
    EXPECT_EQ(read.Check().Children.Count, 1);
    EXPECT_EQ(read.Check().GetLongParameter(2478)->Values[0], 9);
    EXPECT_EQ(read.Check().GetLongParameter(2477)->Operator, OpNone);
}

TEST(ContainerRead, ChecksInsideAPlainCheckAreIgnored) {
    const Container read(104, "", Property("Type='104'", "A"));
    EXPECT_EQ(read.Check().Children.Count, 0);
    EXPECT_EQ(AllOf(read.standard).size(), 1u);
}
