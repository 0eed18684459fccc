// What the panes of the arrowhead checks offer, how it looks, and which of it has a say.
#include "ArrowRoom.h"

#include "editing/BoxPanel.h"
#include "engines/EnumEngine.h"
#include "engines/ParameterKinds.h"
#include "platform/widgets/Look.h"

#include <QApplication>
#include <QTest>
#include <map>

namespace {

using ArrowPanes = ArrowRoom;

CString StyleText(int value) {
    CString text;
    CEnumEngine().GetDisplayString(KindArrowStyle, static_cast<unsigned long>(value), text);
    return text;
}

unsigned StylePicture(int value) {
    unsigned long bitmap = 0;
    CEnumEngine().GetItemID(KindArrowStyle, static_cast<unsigned long>(value), bitmap);
    return static_cast<unsigned>(bitmap);
}

const Arrow::Group& GroupOf(unsigned parameter) {
    return *std::ranges::find(Arrow::Groups, parameter, &Arrow::Group::parameter);
}

} // namespace

TEST_F(ArrowPanes, HaveTheirCaptionPictureAndHelp) {
    struct Expected {
        MQC_CheckType_e type;
        unsigned icon, caption, topic;
    };
    for (const Expected& expected :
         {Expected{Arrow::Document, 1145, 1579, 1002}, Expected{Arrow::Dimensions, 1162, 1580, 1202},
          Expected{Arrow::Annotations, 1158, 1584, 1101}}) {
        CExtDialog& pane = Pane(expected.type);
        EXPECT_EQ(pane.IconID, expected.icon) << expected.type;
        EXPECT_EQ(pane.Caption, LoadString(expected.caption)) << expected.type;
        Gui::Click(*pane.GetDlgItem(CExtDialog::HelpControl));
        EXPECT_EQ(room.helpAsked.back(), std::pair(15u, expected.topic)) << expected.type;
    }
}

TEST_F(ArrowPanes, StartWithNothingRequired) {
    for (const MQC_CheckType_e type : Arrow::All) {
        Pane(type).OnParameterChanged();
        for (const CParameterEntry* entry : room.Live(type)->Parameters)
            EXPECT_EQ(Written(type, entry->Parameter->ID), "0:") << entry->Parameter->ID;
    }
    for (const Arrow::Size& size : Arrow::Sizes) {
        EXPECT_TRUE(Hand(Arrow::Document).IsEnabled(size.combo));
        EXPECT_FALSE(Hand(Arrow::Document).IsEnabled(size.value));
    }
}

TEST_F(ArrowPanes, OfferTheToldOperators) {
    const CStringArray all = {LoadString(1632), "=", "<", ">", "<=", ">=", LoadString(1657), LoadString(1658),
                              LoadString(1659)};
    for (const Arrow::Size& size : Arrow::Sizes) {
        CStringArray rows;
        for (int row = 0; row < Hand(Arrow::Document).Combo(size.combo).count(); ++row)
            rows.append(Hand(Arrow::Document).Combo(size.combo).itemText(row));
        EXPECT_EQ(rows, all) << size.parameter;
    }
}

TEST_F(ArrowPanes, ABoxShowsThePictureOfItsValue) {
    for (const Arrow::Group& group : Arrow::Groups) {
        if (group.parameter == 1569)
            continue;
        for (std::size_t i = 0; i < group.boxes.size(); ++i) {
            const int value = Arrow::ValueOf(group, i);
            const auto& box = Hand(group.type).Get<CPictureBox>(group.boxes[i]);
            EXPECT_EQ(box.toolTip(), StyleText(value)) << group.boxes[i];
            EXPECT_EQ(box.accessibleName(), StyleText(value)) << group.boxes[i];
            EXPECT_EQ(box.accessibleDescription(), LoadString(group.parameter)) << group.boxes[i];
            EXPECT_EQ(box.iconSize(), Look::BitmapSizeOf(StylePicture(value))) << group.boxes[i];
            EXPECT_EQ(box.icon().pixmap(box.iconSize(), 1.0).toImage(),
                      Look::IconOf(StylePicture(value)).pixmap(box.iconSize(), 1.0).toImage());
        }
    }
}

TEST_F(ArrowPanes, PicturesAreDrawnAtTheScaleOfTheScreenAndDiffer) {
    const Arrow::Group& group = GroupOf(1583);
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        std::map<QByteArray, int> seen;
        for (const int number : group.boxes) {
            const auto& box = Hand(group.type).Get<CPictureBox>(number);
            const QImage image = box.icon().pixmap(box.iconSize(), ratio).toImage();
            EXPECT_EQ(image.size(), (QSizeF(box.iconSize()) * ratio).toSize()) << ratio;
            const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
            EXPECT_FALSE(seen.contains(bytes)) << number << " looks like " << seen[bytes];
            seen[bytes] = number;
        }
    }
}

TEST_F(ArrowPanes, EachBoxWritesItsValueAlone) {
    for (const Arrow::Group& group : Arrow::Groups)
        for (std::size_t i = 0; i < group.boxes.size(); ++i) {
            Hand(group.type).Click(group.boxes[i]);
            EXPECT_EQ(Written(group.type, group.parameter), "2:" + QString::number(Arrow::ValueOf(group, i)))
                << group.boxes[i];
            Hand(group.type).Click(group.boxes[i]);
            EXPECT_EQ(Written(group.type, group.parameter), "0:") << group.boxes[i];
        }
}

TEST_F(ArrowPanes, AllBoxesWriteTheirValuesInTheToldOrderWhateverOrderTheyAreTickedIn) {
    for (const Arrow::Group& group : Arrow::Groups) {
        for (auto box = group.boxes.rbegin(); box != group.boxes.rend(); ++box)
            Hand(group.type).Click(*box);
        EXPECT_EQ(Written(group.type, group.parameter),
                  group.boxes.size() == 3 ? "2:0,1,2" : "2:9,1,8,3,6,10,0,4,7,2,5");
    }
}

TEST_F(ArrowPanes, BoxesAreTickedByTheSpaceKey) {
    QWidget& box = Hand(Arrow::Annotations).Get(1079);
    Gui::Focus(box);
    Gui::Key(box, Qt::Key_Space);
    EXPECT_EQ(Written(Arrow::Annotations, 1583), "2:8");
    Gui::Key(box, Qt::Key_Space);
    EXPECT_EQ(Written(Arrow::Annotations, 1583), "0:");
}

TEST_F(ArrowPanes, DocumentBoxesAreTickedByTheSpaceKey) {
    for (const Arrow::DocumentBox& document : Arrow::DocumentBoxes) {
        QWidget& box = Hand(document.type).Get(document.box);
        Gui::Focus(box);
        Gui::Key(box, Qt::Key_Space);
        EXPECT_EQ(Written(document.type, document.parameter), "3:1");
        Gui::Key(box, Qt::Key_Space);
        EXPECT_EQ(Written(document.type, document.parameter), "0:");
    }
}

TEST_F(ArrowPanes, PlacementsAreCalledAsTheirValues) {
    const Arrow::Group& group = GroupOf(1569);
    for (std::size_t i = 0; i < group.boxes.size(); ++i) {
        CString text;
        CEnumEngine().GetDisplayString(KindArrowPlacement,
                                       static_cast<unsigned long>(Arrow::ValueOf(group, i)), text);
        EXPECT_EQ(Hand(group.type).Box(group.boxes[i]).text(), text);
        EXPECT_FALSE(text.isEmpty());
    }
}

TEST_F(ArrowPanes, CorrectionsAreEnteredAsNumbersPicturesOrWords) {
    const auto expect = [this](MQC_CheckType_e type, int control, int mode, int extra) {
        EXPECT_EQ(Hand(type).Correction(control).Mode(), mode) << type << ' ' << control;
        EXPECT_EQ(Hand(type).Correction(control).Extra(), extra) << type << ' ' << control;
    };
    for (const Arrow::Size& size : Arrow::Sizes)
        expect(Arrow::Document, size.correction, NumberEntry, -1);
    for (const Arrow::DocumentBox& document : Arrow::DocumentBoxes)
        expect(document.type, document.correction, TextEntry, -1);
    for (const Arrow::Group& group : Arrow::Groups)
        if (group.parameter == 1569)
            expect(group.type, group.correction, TextEntry, -1);
        else
            expect(group.type, group.correction, ImageEntry, 0);
}

TEST_F(ArrowPanes, TheStyleOfTheDocumentIsWrittenAloneHoweverTheGreyBoxesStand) {
    const ArrowHand hand = Hand(Arrow::Dimensions);
    for (const int box : {1112, 1087, 1122})
        hand.Click(box);
    hand.Click(1077);
    EXPECT_EQ(Written(Arrow::Dimensions, 1567), "3:1");
    EXPECT_EQ(Written(Arrow::Dimensions, 1561), "0:");
    EXPECT_EQ(Written(Arrow::Dimensions, 1562), "0:");
    for (const int box : {1112, 1087, 1122})
        EXPECT_TRUE(hand.Box(box).isChecked() && !hand.IsEnabled(box)) << box;
    hand.Click(1112); // a grey box takes no click
    EXPECT_EQ(Written(Arrow::Dimensions, 1561), "0:");
    hand.Click(1077);
    EXPECT_EQ(Written(Arrow::Dimensions, 1567), "0:");
    EXPECT_EQ(Written(Arrow::Dimensions, 1561), "2:9,5");
    EXPECT_EQ(Written(Arrow::Dimensions, 1562), "2:10");
}

TEST_F(ArrowPanes, ThePlacementOfTheDocumentIsWrittenAlone) {
    const ArrowHand hand = Hand(Arrow::Dimensions);
    hand.Click(1071);
    hand.Click(1112);
    hand.Click(1075);
    EXPECT_EQ(Written(Arrow::Dimensions, 1568), "3:1");
    EXPECT_EQ(Written(Arrow::Dimensions, 1569), "0:");
    EXPECT_EQ(Written(Arrow::Dimensions, 1567), "0:");
    EXPECT_EQ(Written(Arrow::Dimensions, 1561), "2:9");
    hand.Click(1075);
    EXPECT_EQ(Written(Arrow::Dimensions, 1569), "2:2");
}

TEST_F(ArrowPanes, AnnotationsMayTakeTheStyleOfTheDocument) {
    const ArrowHand hand = Hand(Arrow::Annotations);
    hand.Click(1074);
    hand.Click(1068);
    EXPECT_EQ(Written(Arrow::Annotations, 1567), "3:1");
    EXPECT_EQ(Written(Arrow::Annotations, 1583), "0:");
    hand.Click(1068);
    EXPECT_EQ(Written(Arrow::Annotations, 1567), "0:");
    EXPECT_EQ(Written(Arrow::Annotations, 1583), "2:5");
}

TEST_F(ArrowPanes, ADocumentBoxDisablesTheBoxesOfItsGroupsAndNoOthers) {
    for (const Arrow::DocumentBox& document : Arrow::DocumentBoxes) {
        const ArrowHand hand = Hand(document.type);
        const auto expectEnabled = [&](bool isEnabled) {
            EXPECT_TRUE(hand.IsEnabled(document.box));
            for (const Arrow::Group& group : Arrow::Groups) {
                if (group.type != document.type)
                    continue;
                for (const int box : group.boxes)
                    EXPECT_EQ(hand.IsEnabled(box), isEnabled || group.documentBox != document.box) << box;
            }
        };
        expectEnabled(true);
        hand.Click(document.box);
        expectEnabled(false);
        hand.Click(document.box);
        expectEnabled(true);
    }
}

// Neither ticked nor clear: no user can bring the box there, a program can.
TEST_F(ArrowPanes, AHalfTickedDocumentBoxWritesNo) {
    Hand(Arrow::Dimensions).Click(1112);
    Hand(Arrow::Dimensions).Box(1077).setCheckState(Qt::PartiallyChecked);
    Pane(Arrow::Dimensions).OnParameterChanged();
    EXPECT_EQ(Written(Arrow::Dimensions, 1567), "3:0");
    EXPECT_EQ(Written(Arrow::Dimensions, 1561), "0:");
}

TEST_F(ArrowPanes, LabelsGoToTheFirstOfTheirBoxesAndTickNone) {
    for (const MQC_CheckType_e type : Arrow::All) {
        PaneRoom own;
        own.Show();
        own.GetChecksPage().resize(1100, 900);
        CExtDialog& pane = own.Add(type);
        int count = 0;
        for (const QLabel* label : pane.findChildren<QLabel*>()) {
            const qsizetype mark = label->text().indexOf(u'&');
            const auto* panel = qobject_cast<CBoxPanel*>(label->buddy());
            if (mark < 0 || !panel)
                continue;
            ++count;
            EXPECT_FALSE(panel->accessibleName().isEmpty());
            Gui::Focus(*pane.GetDlgItem(CExtDialog::CriticalityControl));
            const auto key = static_cast<Qt::Key>(label->text()[mark + 1].toUpper().unicode());
            Gui::Key(own.GetChecksPage(), key, Qt::AltModifier);
            auto* box = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
            ASSERT_TRUE(box && panel->isAncestorOf(box)) << label->text().toStdString();
            EXPECT_FALSE(box->isChecked());
            EXPECT_EQ(panel->childAt(box->geometry().center()), box);
            for (const auto* other : panel->findChildren<QAbstractButton*>())
                EXPECT_TRUE(other == box || other->y() > box->y() || other->x() > box->x());
        }
        EXPECT_EQ(count, type == Arrow::Annotations ? 1 : 3);
    }
}

TEST_F(ArrowPanes, KeysOfLabelsDoNotRepeatInAPane) {
    for (const MQC_CheckType_e type : Arrow::All) {
        std::map<QChar, CString> keys;
        const auto add = [&](const CString& text) {
            const qsizetype mark = text.indexOf(u'&');
            if (mark < 0)
                return;
            const QChar key = text[mark + 1].toUpper();
            EXPECT_FALSE(keys.contains(key)) << text.toStdString() << " and " << keys[key].toStdString();
            keys[key] = text;
        };
        for (const QLabel* label : Pane(type).findChildren<QLabel*>())
            add(label->text());
        for (const auto* button : Pane(type).findChildren<QCheckBox*>())
            add(button->text());
        EXPECT_GE(keys.size(), 3u);
    }
}

TEST_F(ArrowPanes, TheKeyboardWalksThroughAllControlsFromTopToBottom) {
    for (const MQC_CheckType_e type : Arrow::All) {
        Gui::Focus(*Pane(type).GetDlgItem(type == Arrow::Document     ? 1002
                                          : type == Arrow::Dimensions ? 1077
                                                                      : 1068));
        int boxes = 0, last = -1;
        for (int step = 0; step < 60; ++step) {
            QWidget* focus = QApplication::focusWidget();
            if (!focus || !Pane(type).isAncestorOf(focus) ||
                focus == Pane(type).GetDlgItem(CExtDialog::CriticalityControl))
                break;
            const int y = focus->mapTo(&Pane(type), focus->rect().center()).y();
            EXPECT_GE(y, last - 4) << focus->objectName().toStdString();
            last = y;
            boxes += qobject_cast<CPictureBox*>(focus) ? 1 : 0;
            Gui::Key(*focus, Qt::Key_Tab);
        }
        EXPECT_EQ(boxes, type == Arrow::Document ? 33 : type == Arrow::Dimensions ? 22 : 11);
        EXPECT_EQ(QApplication::focusWidget(), Pane(type).GetDlgItem(CExtDialog::CriticalityControl));
    }
}

TEST_F(ArrowPanes, ACorrectionStandsOnTheRowOfItsParameter) {
    const auto top = [&](MQC_CheckType_e type, int number) {
        const QWidget& control = Hand(type).Get(number);
        return control.mapTo(&Pane(type), QPoint()).y();
    };
    for (const Arrow::Size& size : Arrow::Sizes)
        EXPECT_NEAR(top(Arrow::Document, size.combo), top(Arrow::Document, size.correction), 3);
    for (const Arrow::DocumentBox& document : Arrow::DocumentBoxes)
        EXPECT_NEAR(top(document.type, document.box), top(document.type, document.correction), 6);
    for (const Arrow::Group& group : Arrow::Groups) {
        int first = 10000;
        for (const int box : group.boxes)
            first = qMin(first, top(group.type, box));
        EXPECT_NEAR(first, top(group.type, group.correction), 6) << group.parameter;
    }
}

TEST_F(ArrowPanes, UnitsStandBesideTheSizesAndTheirCorrections) {
    ASSERT_EQ(room.units.size(), 12u);
    for (const Arrow::Size& size : Arrow::Sizes)
        for (const QLineEdit* field :
             {static_cast<const QLineEdit*>(&Hand(Arrow::Document).Field(size.value)),
              static_cast<const QLineEdit*>(Hand(Arrow::Document).Correction(size.correction).Edit())}) {
            const auto entry = std::ranges::find_if(
                room.units, [&](const auto& settings) { return settings->ValueControl == field; });
            ASSERT_NE(entry, room.units.end());
            const QLabel& label = *(*entry)->LabelControl;
            EXPECT_EQ(label.text(), "mm");
            EXPECT_EQ((*entry)->Dimension, 2u);
            EXPECT_NEAR(label.mapToGlobal(label.rect().center()).y(),
                        field->mapToGlobal(field->rect().center()).y(), 2);
        }
}

TEST_F(ArrowPanes, ACorrectionIsChosenAmongPictures) {
    const ArrowHand hand = Hand(Arrow::Document);
    for (const int box : {1060, 1059}) // values 3 and 2
        hand.Click(box);
    CComboBoxExt& list = *hand.Correction(1302).List();
    ASSERT_TRUE(list.isVisible());
    ASSERT_EQ(list.count(), 2);
    for (const auto& [row, value] : {std::pair(0, 3), std::pair(1, 2)}) {
        EXPECT_EQ(list.itemText(row), StyleText(value));
        EXPECT_EQ(list.itemData(row, Qt::ToolTipRole).toString(), StyleText(value));
        EXPECT_EQ(list.itemIcon(row).pixmap(list.iconSize(), 2.0).size(), list.iconSize() * 2);
    }
    EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Document), 1558), "3");
    Gui::ChooseRow(list, 1);
    EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Document), 1558), "2");
    EXPECT_EQ(list.toolTip(), StyleText(2));
    hand.Click(1066); // another value does not disturb the choice
    EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Document), 1558), "2");
    hand.Click(1059); // its own value gone does
    EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Document), 1558), "9");
}

TEST_F(ArrowPanes, AClosedListOfPicturesShowsThePictureAlone) {
    Hand(Arrow::Annotations).Click(1073);
    CComboBoxExt& list = *Hand(Arrow::Annotations).Correction(1297).List();
    const QImage before = list.grab().toImage();
    list.setItemText(0, "a text that would be cut");
    EXPECT_EQ(list.grab().toImage(), before);
    list.setItemIcon(0, Look::IconOf(StylePicture(1)));
    EXPECT_NE(list.grab().toImage(), before);
}

TEST_F(ArrowPanes, CorrectionsOfChoicesInWordsAreShownInWords) {
    const ArrowHand hand = Hand(Arrow::Dimensions);
    hand.Click(1077);
    EXPECT_EQ(hand.Correction(1304).Edit()->text(), LoadString(1660));
    EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Dimensions), 1567), "1");
    for (const int box : {1067, 1069, 1071})
        hand.Click(box);
    CComboBoxExt& list = *hand.Correction(1300).List();
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.currentText(), LoadString(1575));
    Gui::ChooseRow(list, 2);
    EXPECT_EQ(list.currentText(), LoadString(1577));
    EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Dimensions), 1569), "2");
    hand.Click(1067);
    EXPECT_EQ(WrittenCorrection(*room.Live(Arrow::Dimensions), 1569), "2");
}

TEST_F(ArrowPanes, CriticalityIsWritten) {
    for (const MQC_CheckType_e type : Arrow::All) {
        Gui::ChooseRow(Hand(type).Get(CExtDialog::CriticalityControl), 3);
        EXPECT_EQ(room.Live(type)->Criticality, 3u) << type;
    }
}
