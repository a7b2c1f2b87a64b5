// SPDX-License-Identifier: MIT
#include "CKvMainWindow.h"
#include "CKvWatchedDeskTest.h"

#include <QInputDialog>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// What is clicked in the panel of layers and styles is checked as if it had been typed.
class PanelAndCheck : public CKvWatchedDeskTest
{
protected:
    template <class T> T &child(const char *name)
    {
        return *m_desk->window().findChild<T *>(QString::fromLatin1(name));
    }
    void choose(const char *name)
    {
        QCoreApplication::processEvents();
        auto &list = child<QTreeWidget>("Records");
        list.setCurrentItem(
            list.findItems(text(name), Qt::MatchExactly | Qt::MatchRecursive).first());
    }
    void click(const char *button)
    {
        QTest::mouseClick(&child<QPushButton>(button), Qt::LeftButton);
    }
    void change(const char *option)
    {
        auto &menu = child<QMenu>("ChangeRecordMenu");
        emit menu.aboutToShow();
        menu.findChild<QAction *>(QString(text(option) + QLatin1String("Change")))->trigger();
    }
    void answerWith(const char *value)
    {
        m_user.answer(text("QInputDialog"), [value](QDialog &dialog) {
            static_cast<QInputDialog &>(dialog).setTextValue(text(value));
            dialog.accept();
        });
    }
};

} // namespace

TEST_F(PanelAndCheck, AColourThatBreaksTheStandardIsTold)
{
    verifyAndPassOver();
    answerWith("green");
    choose("WALLS");

    change("COLOR");
    runPosted();

    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS"));
    EXPECT_EQ(told(), 1);
}

TEST_F(PanelAndCheck, ANewNameIsToldAndRepaired)
{
    verifyAndFix();
    answerWith("WALLS-2");
    choose("WALLS");

    click("RenameRecordButton");
    runPosted();

    EXPECT_THAT(m_seen, ElementsAre("Layer: WALLS-2"));
}

TEST_F(PanelAndCheck, ASettingOfADimensionStyleIsTold)
{
    verifyAndPassOver();
    int asked = 0;
    m_user.answer(text("QInputDialog"), [&asked](QDialog &dialog) {
        auto &box = static_cast<QInputDialog &>(dialog);
        if (asked++ == 0) {
            box.setTextValue(box.comboBoxItems().filter(text("DIMTXT = ")).first());
        } else {
            box.setTextValue(text("7.75"));
        }
        dialog.accept();
    });
    choose("OFFICE");

    change("VARIABLE");
    runPosted();

    EXPECT_THAT(m_seen, ElementsAre("DimensionStyle: OFFICE"));
}

TEST_F(PanelAndCheck, ASwitchThatNoStandardLooksAtIsNotTold)
{
    choose("WALLS");

    change("LOCK");
    runPosted();

    EXPECT_EQ(told(), 0);
    EXPECT_THAT(m_seen, IsEmpty());
}
