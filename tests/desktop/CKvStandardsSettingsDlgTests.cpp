// SPDX-License-Identifier: MIT
#include "CKvStandardsSettingsDlg.h"

#include "CKvDesktopTest.h"
#include "CKvExpressionParserData.h"
#include "CKvHostDocument.h"
#include "OdError.h"
#include "standardsList.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>

namespace
{

class StandardsSettings : public CKvDesktopTest
{
protected:
    /// A drawing that lists these files.
    CKvHostDocument &openWith(const QStringList &files)
    {
        CKvDrawingBuilder drawing;
        drawing.withDefaults().standardsFiles(files);
        drawing.saveTo(path("plan.dxf"));
        return open(path("plan.dxf"));
    }
    CKvStandardsSettingsDlg &dialog(int page = 1)
    {
        m_dialog = std::make_unique<CKvStandardsSettingsDlg>(
            session(), *m_desktop->activeDocument(), page);
        return *m_dialog;
    }
    QTreeWidget &rows() { return *child<QTreeWidget>(*m_dialog, "StandardsFiles"); }
    QStringList column(int number)
    {
        QStringList texts;
        for (int i = 0; i < rows().topLevelItemCount(); ++i) {
            texts << rows().topLevelItem(i)->text(number);
        }
        return texts;
    }
    QPushButton &button(const char *name) { return *child<QPushButton>(*m_dialog, name); }
    QStringList stored()
    {
        QStringList files;
        for (const CKvString &file : readStandardsList(
                 *m_desktop->activeDocument()->GetKvDatabase(), ForeignListEntry::Throw)) {
            files << file.toQString();
        }
        return files;
    }
    void request(std::int16_t page)
    {
        OdResBufPtr head = OdResBuf::newRb(OdResBuf::kRtString);
        head->setString(OdString("_DWGSTANDARDS"));
        OdResBufPtr number = OdResBuf::newRb(OdResBuf::kRtInt16);
        number->setInt16(page);
        number->setNext(OdResBuf::newRb(OdResBuf::kRtEnd));
        head->setNext(number);
        CKvExpressionParserData data;
        session().evaluateExpression(data, head);
        EXPECT_TRUE(data.failure().isEmpty());
    }

    std::unique_ptr<CKvStandardsSettingsDlg> m_dialog;
};

} // namespace

TEST_F(StandardsSettings, WhichFilesAreMissingOrUnreadableIsSeen)
{
    QFile letter(path("letter.dxf"));
    ASSERT_TRUE(letter.open(QIODevice::WriteOnly));
    letter.write("Dear Sir,\n");
    letter.close();
    openWith(
        { write("here.dxf"), path("gone.dxf"), text("/elsewhere/here.dxf"), letter.fileName() });

    dialog();

    EXPECT_EQ(column(0), list({ "here.dxf", "gone.dxf", "here.dxf", "letter.dxf" }));
    EXPECT_EQ(column(1), list({ "found", "missing", "found elsewhere", "unreadable" }));
    EXPECT_FALSE(rows().topLevelItem(0)->font(1).bold());
    EXPECT_TRUE(rows().topLevelItem(1)->font(1).bold());
    EXPECT_TRUE(rows().topLevelItem(3)->toolTip(1).contains(text("letter.dxf:1:")))
        << rows().topLevelItem(3)->toolTip(1).toStdString();
}

TEST_F(StandardsSettings, FilesAreAddedRemovedAndOrderedWithOk)
{
    openWith({ path("a.dxf"), path("b.dxf"), path("c.dxf") });
    CKvStandardsSettingsDlg &settings = dialog();

    settings.addFile(path("new.dxf"));
    settings.addFile(path("new.dxf"));
    rows().setCurrentItem(rows().topLevelItem(0));
    button("RemoveFileButton").click();
    rows().setCurrentItem(rows().topLevelItem(1));
    button("MoveUpButton").click();
    EXPECT_EQ(stored(), QStringList({ path("a.dxf"), path("b.dxf"), path("c.dxf") }));
    settings.accept();

    EXPECT_EQ(stored(), QStringList({ path("c.dxf"), path("b.dxf"), path("new.dxf") }));
    EXPECT_TRUE(m_desktop->activeDocument()->isModified());
}

TEST_F(StandardsSettings, AddListsEveryFormThatADrawingIsReadFrom)
{
    openWith({});
    dialog();
    QStringList filters;
    CKvModalScript script;
    script.answer(text("QFileDialog"), [&](QDialog &chooser) {
        filters = static_cast<QFileDialog &>(chooser).nameFilters();
        chooser.reject();
    });

    button("AddFileButton").click();

    EXPECT_EQ(filters,
              list({ "Drawings (*.dxf *.DXF *.dxf.gz *.dws *.DWS *.dwg *.DWG)", "All files (*)" }));
    EXPECT_EQ(rows().topLevelItemCount(), 0);
}

TEST_F(StandardsSettings, CancelAndOkWithoutAChangeLeaveTheDrawingAlone)
{
    CKvHostDocument &document = openWith({ path("a.dxf") });

    dialog().addFile(path("b.dxf"));
    m_dialog->reject();
    dialog().accept();

    EXPECT_EQ(stored(), QStringList({ path("a.dxf") }));
    EXPECT_FALSE(document.isModified());
}

TEST_F(StandardsSettings, MoveButtonsKnowTheEndsOfTheList)
{
    openWith({ path("a.dxf"), path("b.dxf") });
    dialog();

    EXPECT_FALSE(button("MoveUpButton").isEnabled());
    EXPECT_TRUE(button("MoveDownButton").isEnabled());
    button("MoveDownButton").click();

    EXPECT_TRUE(button("MoveUpButton").isEnabled());
    EXPECT_FALSE(button("MoveDownButton").isEnabled());
    EXPECT_EQ(column(0), list({ "b.dxf", "a.dxf" }));
}

TEST_F(StandardsSettings, SettingsAreKeptWithOk)
{
    openWith({ path("a.dxf"), path("b.dxf") });
    CKvStandardsSettingsDlg &settings = dialog(3);
    auto *preferred = child<QComboBox>(settings, "PreferredFile");
    EXPECT_EQ(preferred->currentText(), text("None"));

    preferred->setCurrentIndex(preferred->findData(path("b.dxf")));
    child<QCheckBox>(settings, "FixAutomatically")->setChecked(true);
    child<QCheckBox>(settings, "ShowIgnored")->setChecked(true);
    child<QCheckBox>(settings, "Notify")->setChecked(false);
    settings.accept();

    EXPECT_EQ(session().settings().preferredStandardsFile(), CKvString(path("b.dxf")));
    EXPECT_TRUE(session().settings().fixAutomatically());
    EXPECT_TRUE(session().settings().showIgnored());
    EXPECT_EQ(session().settings().standardsViolation(), 0);
    EXPECT_EQ(child<QComboBox>(dialog(3), "PreferredFile")->currentData().toString(),
              path("b.dxf"));
}

TEST_F(StandardsSettings, APreferredFileOfAnotherDrawingStaysChosen)
{
    session().settings().setPreferredStandardsFile(text("/office.dxf"));
    openWith({ path("a.dxf") });

    dialog(3).accept();

    EXPECT_EQ(session().settings().preferredStandardsFile(), CKvString("/office.dxf"));
}

TEST_F(StandardsSettings, AnyNotificationButZeroStays)
{
    session().settings().setStandardsViolation(1);
    openWith({});

    dialog(3).accept();

    EXPECT_EQ(session().settings().standardsViolation(), 1);
}

TEST_F(StandardsSettings, NotificationAndItsVariableAreOneSetting)
{
    openWith({});
    EXPECT_TRUE(child<QCheckBox>(dialog(3), "Notify")->isChecked());

    enter("SETVAR STANDARDSVIOLATION 0");
    CKvStandardsSettingsDlg &off = dialog(3);
    EXPECT_FALSE(child<QCheckBox>(off, "Notify")->isChecked());
    child<QCheckBox>(off, "Notify")->setChecked(true);
    off.accept();

    EXPECT_EQ(session().settings().standardsViolation(), 2);
    enter("SETVAR STANDARDSVIOLATION \"\"");
    enter("SETVAR STANDARDSVIOLATION 1");
    EXPECT_TRUE(child<QCheckBox>(dialog(3), "Notify")->isChecked());
    const CKvDatabase &database = *m_desktop->activeDocument()->GetKvDatabase();
    EXPECT_EQ(database.getSysVar(OdString("STANDARDSVIOLATION"))->getInt16(), 1);
}

TEST_F(StandardsSettings, ARequestOpensThePageOfItsNumber)
{
    openWith({});
    QStringList pages;
    CKvModalScript script;
    script.answer(text("CKvStandardsSettingsDlg"), [&](QDialog &shown) {
        auto *tabs = shown.findChild<QTabWidget *>(text("Pages"));
        pages << tabs->tabText(tabs->currentIndex());
        shown.reject();
    });

    request(1);
    request(2);
    request(3);
    enter("DWGSTANDARDS");

    EXPECT_EQ(pages, list({ "&Files", "&Categories", "&Settings", "&Files" }));
}

TEST_F(StandardsSettings, WithoutADrawingNothingOpens)
{
    enter("DWGSTANDARDS");

    EXPECT_EQ(said(), list({ "No drawing is open." }));
}

TEST_F(StandardsSettings, WithoutAModuleThereAreNoCategories)
{
    openWith({});

    EXPECT_EQ(child<QListWidget>(dialog(2), "Categories")->count(), 0);
}

TEST_F(StandardsSettings, ADrawingWithoutAPlaceForAListRefusesIt)
{
    CKvDrawingBuilder("AC1009").saveTo(path("old.dxf"));
    open(path("old.dxf"));
    dialog().addFile(path("a.dxf"));

    EXPECT_THROW(m_dialog->accept(), OdError);

    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}
