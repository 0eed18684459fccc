// The list of font families.
#include "editing/FontList.h"

#include "support/ShownWindow.h"

#include <QFontDatabase>
#include <gtest/gtest.h>

namespace {

class Families : public testing::Test {
protected:
    Families() : m_faces(*m_window.Add<CFontList>()), m_plain(*m_window.Add<CChoiceList>()) {}

    void Show() {
        for (int row = 0; row < m_faces.count(); ++row)
            m_plain.addItem(m_faces.item(row)->text());
        for (CChoiceList* list : {static_cast<CChoiceList*>(&m_faces), &m_plain})
            list->setFocusPolicy(Qt::NoFocus); // the frame of a row with the keyboard is a difference too
        EXPECT_TRUE(m_window.Show());
    }
    // Whether a row is drawn otherwise than any text would be.
    bool HasOwnFace(int row) { return PictureOf(m_faces, row) != PictureOf(m_plain, row); }

    ShownWindow m_window;
    CFontList& m_faces;
    CChoiceList& m_plain;

private:
    static QImage PictureOf(CChoiceList& list, int row) {
        list.scrollToItem(list.item(row), QAbstractItemView::PositionAtTop);
        QImage picture(QSize(300, CChoiceList::RowHeight), QImage::Format_RGB32);
        picture.fill(Qt::white);
        const QRect place = list.visualItemRect(list.item(row));
        list.viewport()->render(&picture, {}, QRegion(place));
        return picture;
    }
};

} // namespace

TEST_F(Families, AreThoseOfTheMachineOnceEach) {
    m_faces.FillWithInstalled();
    EXPECT_GT(m_faces.count(), 0);
    CStringArray names;
    for (int row = 0; row < m_faces.count(); ++row) {
        names.append(m_faces.item(row)->text());
        EXPECT_TRUE(QFontDatabase::hasFamily(names.last())) << names.last().toStdString();
    }
    EXPECT_EQ(names.removeDuplicates(), 0);
}

TEST_F(Families, StandInTheirOwnFaces) {
    m_faces.FillWithInstalled();
    Show();
    for (int row = 0; row < m_faces.count(); ++row) {
        const CString name = m_faces.item(row)->text();
        const bool isLatin = QFontDatabase::writingSystems(name).contains(QFontDatabase::Latin);
        const bool isUsual = QFontInfo(m_plain.font()).family() == name;
        EXPECT_EQ(HasOwnFace(row), isLatin && !isUsual) << name.toStdString();
    }
}

TEST_F(Families, ANameThatTheMachineLacksStandsInTheUsualFace) {
    m_faces.addItem("Missing Face");
    Show();
    EXPECT_FALSE(HasOwnFace(0));
}
