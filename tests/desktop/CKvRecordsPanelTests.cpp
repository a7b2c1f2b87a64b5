// SPDX-License-Identifier: MIT
#include "CKvRecordsPanel.h"

#include "CKvCommandLog.h"
#include "CKvCommandPanel.h"
#include "CKvDesktopTest.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "CKvTestApplication.h"

#include <QInputDialog>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace
{

/// A drawing with records of each kind, and somebody who clicks in the panel.
class RecordsPanel : public CKvDesktopTest
{
protected:
    RecordsPanel()
        : m_log(session().commands())
    {
        CKvDrawingBuilder drawing;
        drawing.withDefaults().currentLayer("0").measurement(1);
        drawing.layer("WALLS").color(1).lineWeight(35);
        drawing.layer("NOTES").trueColor(10, 20, 30, 7);
        drawing.lineStyle("FENCE").description("Fence ._._").dashes({ 4, -1 });
        drawing.textStyle("TITLES").font("arial.ttf").height(5);
        drawing.dimStyle("OFFICE").group(140, 2.5);
        drawing.modelSpace().line("WALLS");
        drawing.saveTo(path("plan.dxf"));
        m_before = contentOf(path("plan.dxf"));
        open(path("plan.dxf"));
        settle();
        m_script.answer(text("QInputDialog"), [this](QDialog &dialog) { answer(dialog); });
        m_log.take();
    }
    /// The list is filled once the running event is done.
    static void settle() { QCoreApplication::processEvents(); }
    QTreeWidget &tree() { return *child<QTreeWidget>(window(), "Records"); }
    QPushButton &button(const char *name) { return *child<QPushButton>(window(), name); }
    /// A line for each entry of the list, those of a kind behind two blanks.
    QStringList shown()
    {
        QStringList lines;
        for (QTreeWidgetItemIterator walk(&tree()); *walk; ++walk) {
            QStringList cells;
            for (const int column : { 0, 4, 5 }) {
                cells << (*walk)->text(column);
            }
            const bool isRecord = (*walk)->parent() != nullptr;
            lines << (isRecord ? QString(QLatin1String("  ") + cells.join(QLatin1String(" | ")))
                               : (*walk)->text(0));
        }
        return lines;
    }
    static std::string inLines(const QStringList &lines)
    {
        return lines.join(QLatin1Char('\n')).toStdString();
    }
    QTreeWidgetItem *item(const char *name)
    {
        const QList<QTreeWidgetItem *> found =
            tree().findItems(text(name), Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_EQ(found.size(), 1) << name;
        return found.value(0);
    }
    void choose(const char *name)
    {
        QTreeWidgetItem *chosen = item(name);
        if (chosen->parent()) {
            chosen->parent()->setExpanded(true);
        }
        tree().setCurrentItem(chosen);
    }
    void clickCell(const char *name, int column)
    {
        const QRect place = tree().visualRect(
            tree().model()->index(row(name), column, tree().model()->index(0, 0)));
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
        settle();
    }
    int row(const char *name) { return item(name)->parent()->indexOfChild(item(name)); }
    /// @param answers of the dialogs that come up; "<cancel>" rejects one.
    void click(const char *name, const QStringList &answers = {})
    {
        m_answers = answers;
        QTest::mouseClick(&button(name), Qt::LeftButton);
        settle();
    }
    void press(Qt::Key key, const QStringList &answers = {})
    {
        m_answers = answers;
        QApplication::setActiveWindow(&window());
        tree().setFocus();
        QTest::keyClick(&tree(), key);
        settle();
    }
    QAction *entry(const char *option)
    {
        QMenu &menu = *child<QMenu>(window(), "ChangeRecordMenu");
        emit menu.aboutToShow();
        return menu.findChild<QAction *>(QString(text(option) + QLatin1String("Change")));
    }
    void change(const char *option, const QStringList &answers = {})
    {
        m_answers = answers;
        QAction *action = entry(option);
        ASSERT_NE(action, nullptr) << option;
        action->trigger();
        settle();
    }
    void answer(QDialog &dialog)
    {
        const QString text =
            m_answers.isEmpty() ? QStringLiteral("<cancel>") : m_answers.takeFirst();
        if (text == QLatin1String("<cancel>")) {
            dialog.reject();
            return;
        }
        static_cast<QInputDialog &>(dialog).setTextValue(text);
        dialog.accept();
    }
    QByteArray saved()
    {
        m_desktop->activeDocument()->saveAs(path("out.dxf"));
        return contentOf(path("out.dxf"));
    }
    /// What is told in a box, since nobody has caught it.
    static std::vector<std::string> failures()
    {
        QCoreApplication::sendPostedEvents(QCoreApplication::instance());
        return CKvTestApplication::instance()->takeFailures();
    }

    CKvModalScript m_script;
    CKvCommandLog m_log;
    QStringList m_answers;
    QByteArray m_before;
};

} // namespace

TEST_F(RecordsPanel, LayersAndStylesAreListedWithWhatTheyAreLike)
{
    EXPECT_EQ(inLines(shown()),
              inLines(list({ "Layers (3)",
                             "  0 | Continuous | Default",
                             "  WALLS | Continuous | 0.35 mm",
                             "  NOTES | Continuous | Default",
                             "Line styles (4)",
                             "  ByBlock |  | ",
                             "  ByLayer |  | ",
                             "  Continuous | Solid line | ",
                             "  FENCE | Fence ._._ | 5.0",
                             "Text styles (2)",
                             "  Standard | txt | ",
                             "  TITLES | arial.ttf | 5.0",
                             "Dimension styles (2)",
                             "  Standard |  | 0.18",
                             "  OFFICE |  | 2.5" })));
    EXPECT_TRUE(item("0")->font(0).bold());
    EXPECT_FALSE(item("WALLS")->font(0).bold());
    EXPECT_EQ(item("WALLS")->toolTip(0), text("Colour red"));
    EXPECT_EQ(item("NOTES")->toolTip(0), text("Colour 10,20,30"));
    EXPECT_EQ(item("NOTES")->icon(0).pixmap(14).toImage().pixelColor(7, 7), QColor(10, 20, 30));
}

TEST_F(RecordsPanel, EachClickIsACommandThatTheReactorsSeeBeginAndEnd)
{
    choose("WALLS");
    click("AddRecordButton", list({ "A new one" }));
    EXPECT_EQ(m_log.take(), list({ "+LAYER", "-LAYER" }));
    click("RenameRecordButton", list({ "A-WALL" }));
    EXPECT_EQ(m_log.take(), list({ "+RENAME", "-RENAME" }));
    change("COLOR", list({ "cyan" }));
    change("LWEIGHT", list({ "0.50 mm" }));
    change("LTYPE", list({ "FENCE" }));
    change("LOCK");
    EXPECT_EQ(
        m_log.take(),
        list({ "+LAYER", "-LAYER", "+LAYER", "-LAYER", "+LAYER", "-LAYER", "+LAYER", "-LAYER" }));
    choose("NOTES");
    click("DeleteRecordButton");
    EXPECT_EQ(m_log.take(), list({ "+LAYER", "-LAYER" }));

    EXPECT_EQ(shown().mid(0, 4),
              list({ "Layers (3)",
                     "  0 | Continuous | Default",
                     "  A-WALL | FENCE | 0.50 mm",
                     "  A new one | Continuous | Default" }));
    EXPECT_EQ(item("A-WALL")->toolTip(0), text("Colour cyan"));
    EXPECT_EQ(item("A-WALL")->toolTip(3), text("locked"));
    enter("UNDO 7");
    settle();
    EXPECT_EQ(saved(), m_before);
    EXPECT_EQ(shown()[2], text("  WALLS | Continuous | 0.35 mm"));
}

TEST_F(RecordsPanel, ALineStyleIsLoadedOrMadeOfAPattern)
{
    choose("FENCE");

    click("AddRecordButton", list({ "DASHED" }));
    click("AddRecordButton", list({ "HEDGE", "3,-1,0,-1" }));
    change("DESCRIPTION", list({ "A fence" }));
    change("PATTERN", list({ "6,-2" }));

    EXPECT_TRUE(failures().empty());
    EXPECT_EQ(shown().filter(text("HEDGE")), list({ "  HEDGE |  | 5.0" }));
    EXPECT_EQ(shown().filter(text("FENCE")), list({ "  FENCE | A fence | 8.0" }));
    EXPECT_EQ(item("DASHED")->parent()->text(0), text("Line styles (6)"));
}

TEST_F(RecordsPanel, ATextStyleIsChangedByItsMenuWhoseTicksTellWhatItIs)
{
    choose("TITLES");
    EXPECT_FALSE(entry("BACKWARDS")->isChecked());

    change("BACKWARDS");
    change("HEIGHT", list({ "7" }));
    change("TYPEFACE", list({ "Arial" }));
    change("BOLD");

    EXPECT_TRUE(entry("BACKWARDS")->isChecked());
    EXPECT_TRUE(entry("BOLD")->isChecked());
    EXPECT_FALSE(entry("ITALIC")->isChecked());
    EXPECT_EQ(entry("COLOR"), nullptr);
    EXPECT_EQ(shown().filter(text("TITLES")), list({ "  TITLES | Arial | 7.0" }));
    change("BACKWARDS");
    EXPECT_FALSE(entry("BACKWARDS")->isChecked());
}

TEST_F(RecordsPanel, ASettingOfADimensionStyleIsChosenAndSet)
{
    choose("OFFICE");

    change("VARIABLE", list({ "DIMTXT = 2.5", "3.5" }));
    change("VARIABLE", list({ "DIMPOST = \"\"", "<> mm" }));
    change("SET");

    EXPECT_TRUE(failures().empty());
    EXPECT_EQ(shown().filter(text("OFFICE")), list({ "  OFFICE |  | 3.5" }));
    EXPECT_TRUE(item("OFFICE")->font(0).bold());
    enter("DIMSTYLE LIST OFFICE");
    EXPECT_TRUE(said().contains(text("DIMPOST = <> mm"))) << said().join(text("\n")).toStdString();
}

TEST_F(RecordsPanel, AClickOnAMarkSwitchesTheLayer)
{
    clickCell("WALLS", 1);
    clickCell("WALLS", 2);
    clickCell("WALLS", 3);
    EXPECT_EQ(item("WALLS")->toolTip(1), text("off"));
    EXPECT_EQ(item("WALLS")->toolTip(2), text("frozen"));
    EXPECT_EQ(item("WALLS")->toolTip(3), text("locked"));
    EXPECT_EQ(m_log.take().size(), 6);

    clickCell("WALLS", 1);
    clickCell("WALLS", 2);
    clickCell("WALLS", 3);

    EXPECT_EQ(item("WALLS")->toolTip(1), text("on"));
    EXPECT_EQ(item("WALLS")->toolTip(2), text("not frozen"));
    EXPECT_EQ(item("WALLS")->toolTip(3), text("not locked"));
    clickCell("WALLS", 4);
    EXPECT_EQ(m_log.take().size(), 6);
}

TEST_F(RecordsPanel, WhatFailsIsTold)
{
    choose("WALLS");
    click("DeleteRecordButton");
    EXPECT_EQ(failures(),
              std::vector<std::string> { "\"WALLS\" is in use, or can never be deleted." });
    click("AddRecordButton", list({ "notes" }));
    EXPECT_EQ(
        failures(),
        std::vector<std::string> { "The drawing has a record of the name \"notes\" already." });
    click("RenameRecordButton", list({ "A/B" }));
    EXPECT_EQ(failures(),
              std::vector<std::string> {
                  "The name \"A/B\" has the character \"/\", which names can't have." });
    choose("0");
    clickCell("0", 2);
    EXPECT_EQ(failures(), std::vector<std::string> { "The current layer can't be frozen." });

    EXPECT_EQ(
        m_log.take(),
        list({ "+LAYER", "!LAYER", "+LAYER", "!LAYER", "+RENAME", "!RENAME", "+LAYER", "!LAYER" }));
    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}

TEST_F(RecordsPanel, ADialogThatIsBrokenOffOrLeftAsItIsRunsNothing)
{
    choose("WALLS");

    click("AddRecordButton", list({ "<cancel>" }));
    click("AddRecordButton", list({ "" }));
    click("RenameRecordButton", list({ "WALLS" }));
    change("COLOR", list({ "<cancel>" }));
    change("COLOR", list({ "red" }));
    change("LWEIGHT", list({ "0.35 mm" }));
    choose("FENCE");
    click("AddRecordButton", list({ "HEDGE", "<cancel>" }));
    choose("OFFICE");
    change("VARIABLE", list({ "DIMTXT = 2.5", "<cancel>" }));

    EXPECT_EQ(m_log.take(), QStringList());
    EXPECT_EQ(m_script.shown().size(), 10);
}

TEST_F(RecordsPanel, KeysRenameDeleteAndAdd)
{
    choose("NOTES");

    press(Qt::Key_F2, list({ "TEXTS" }));
    EXPECT_EQ(tree().currentItem()->text(0), text("TEXTS"));
    press(Qt::Key_Delete);
    press(Qt::Key_Insert, list({ "MORE" }));

    EXPECT_EQ(m_log.take(), list({ "+RENAME", "-RENAME", "+LAYER", "-LAYER", "+LAYER", "-LAYER" }));
    EXPECT_EQ(shown().filter(text("TEXTS")), QStringList());
    EXPECT_EQ(shown()[3], text("  MORE | Continuous | Default"));
}

TEST_F(RecordsPanel, WhatWasChosenStaysSoAndWhatWasOpenStaysOpen)
{
    choose("TITLES");
    tree().topLevelItem(0)->setExpanded(false);

    enter("RENAME STYLE TITLES HEADINGS");
    enter("LAYER NEW A");
    settle();

    EXPECT_EQ(tree().currentItem()->text(0), text("HEADINGS"));
    EXPECT_FALSE(tree().topLevelItem(0)->isExpanded());
    EXPECT_TRUE(tree().topLevelItem(2)->isExpanded());
    enter("STYLE DELETE HEADINGS");
    settle();
    EXPECT_EQ(tree().currentItem()->text(0), text("Text styles (1)"));
    EXPECT_FALSE(button("DeleteRecordButton").isEnabled());
    EXPECT_TRUE(button("AddRecordButton").isEnabled());
}

TEST_F(RecordsPanel, TheActiveDrawingIsTheOneThatIsListedAndChanged)
{
    open(write("other.dxf", 1));
    settle();
    EXPECT_TRUE(shown().contains(text("  L0 | Continuous | Default")));
    EXPECT_EQ(shown().filter(text("WALLS")), QStringList());
    choose("L0");
    change("COLOR", list({ "5" }));

    enter("CLOSE Y");
    settle();

    EXPECT_TRUE(shown().contains(text("  WALLS | Continuous | 0.35 mm")));
    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
    enter("CLOSE");
    settle();
    EXPECT_EQ(shown(), QStringList());
    for (const char *name : { "AddRecordButton", "RenameRecordButton", "DeleteRecordButton" }) {
        EXPECT_FALSE(button(name).isEnabled()) << name;
    }
}

TEST_F(RecordsPanel, ACommandThatWaitsIsBrokenOffFirst)
{
    QTimer::singleShot(0, &window(), [this] { enter("CIRCLE"); });
    QTimer::singleShot(0, &window(), [this] { clickCell("WALLS", 1); });
    settle();
    settle();

    EXPECT_EQ(m_log.take(), list({ "+CIRCLE", "xCIRCLE", "+LAYER", "-LAYER" }));
    EXPECT_EQ(item("WALLS")->toolTip(1), text("off"));
}

TEST_F(RecordsPanel, OtherColoursOfTheWindowDrawTheMarksAnewAndKeepTheChoice)
{
    choose("WALLS");
    const QImage before = item("WALLS")->icon(3).pixmap(14).toImage();

    m_desktop->usePalette(text("dark"));
    settle();

    EXPECT_NE(item("WALLS")->icon(3).pixmap(14).toImage(), before);
    EXPECT_EQ(tree().currentItem()->text(0), text("WALLS"));
    m_desktop->usePalette(text("light"));
}
