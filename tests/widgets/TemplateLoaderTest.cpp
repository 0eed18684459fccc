#include "platform/widgets/TemplateLoader.h"

#include "platform/LanguageLibrary.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace {

QByteArray Template(const QByteArray& content) {
    return "<ui version=\"4.0\" idbasedtr=\"true\"><class>T</class><widget class=\"QWidget\" name=\"77\">"
           "<layout class=\"QGridLayout\" name=\"rows\">" +
           content + "</layout></widget></ui>";
}

QByteArray Item(const QByteArray& widgetClass, const QByteArray& name, const QByteArray& properties = {}) {
    return "<item row=\"0\" column=\"0\"><widget class=\"" + widgetClass + "\" name=\"" + name + "\">" +
           properties + "</widget></item>";
}

struct Filled {
    QWidget window;
    QHash<int, QWidget*> controls;
    bool isWhole;

    explicit Filled(const QByteArray& source) : isWhole(FillFromSource(source, window, controls)) {}
};

class OwnLabel : public QLabel {
public:
    using QLabel::QLabel;
};

} // namespace

TEST(TemplateLoader, ControlsAreToldByNumberAndStandInTheWindow) {
    const Filled filled(Template(Item("QLineEdit", "1002") + Item("QLabel", "caption")));
    ASSERT_TRUE(filled.isWhole);
    ASSERT_EQ(filled.controls.size(), 1);
    EXPECT_TRUE(qobject_cast<QLineEdit*>(filled.controls.value(1002)));
    EXPECT_EQ(filled.controls.value(1002)->parentWidget(), &filled.window);
    EXPECT_TRUE(qobject_cast<QGridLayout*>(filled.window.layout()));
}

TEST(TemplateLoader, TextsAreNumbersOfTheLanguageLibrary) {
    const Filled filled(Template(
        Item("QLabel", "1003", "<property name=\"text\"><string id=\"2267\">x</string></property>")));
    ASSERT_TRUE(filled.isWhole);
    EXPECT_EQ(qobject_cast<QLabel*>(filled.controls.value(1003))->text(), LoadString(2267));
    EXPECT_FALSE(LoadString(2267).isEmpty());
}

TEST(TemplateLoader, AClassOfTheProgramsOwnIsMadeByItsMaker) {
    RegisterControlClass("OwnLabel", [](QWidget* parent) { return new OwnLabel(parent); });
    const Filled filled(Template(Item("OwnLabel", "1004")));
    ASSERT_TRUE(filled.isWhole);
    EXPECT_TRUE(dynamic_cast<OwnLabel*>(filled.controls.value(1004)));
}

TEST(TemplateLoader, AnUnknownClassMakesADamagedTemplate) {
    const Filled filled(Template(Item("NobodysWidget", "1005")));
    EXPECT_FALSE(filled.isWhole);
    EXPECT_TRUE(filled.controls.isEmpty());
}

TEST(TemplateLoader, BrokenAndMissingTemplatesAreRefused) {
    EXPECT_FALSE(Filled("<ui version=\"4.0\"><widget").isWhole);
    EXPECT_FALSE(Filled("").isWhole);
    QWidget window;
    QHash<int, QWidget*> controls;
    EXPECT_FALSE(FillFromTemplate(65000, window, controls));
}
