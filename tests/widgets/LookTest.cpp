// The look of the tool: its palette, faces and pictures, and the standard controls.
#include "widgets/Gallery.h"

#include "platform/widgets/Look.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class LookTest : public testing::Test {
protected:
    static void SetUpTestSuite() { Look::ApplyTo(*qApp); }
};

} // namespace

TEST_F(LookTest, Look_GalleryShowsEveryControl) {
    const auto gallery = MakeGallery();
    gallery->show();
    gallery->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(gallery.get()));
    int number = 0;
    for (const char* name : {"edit", "combo", "spin", "OK", "&Cancel", "box2", "list"}) {
        auto* control = gallery->findChild<QWidget*>(name);
        ASSERT_TRUE(control) << name;
        control->setFocus();
        QTest::mouseMove(control);
        QTest::qWait(20);
        Picture(*gallery, QString("gallery%1").arg(++number));
    }
    auto* menu = gallery->findChild<QMenu*>("file");
    menu->popup({20, 20});
    menu->setActiveAction(menu->actions().constFirst());
    Picture(*menu, "menu");
    menu->close();
}
