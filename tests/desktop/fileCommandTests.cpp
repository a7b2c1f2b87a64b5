// SPDX-License-Identifier: MIT
#include "CKvCommandPanel.h"
#include "CKvDesktopTest.h"
#include "CKvDwgProgram.h"
#include "CKvDxfError.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdError.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace
{

class FileCommands : public CKvDesktopTest
{
protected:
    QStringList titles()
    {
        QStringList all;
        for (const auto &document : session().documentManager()->documents()) {
            all << document->title();
        }
        return all;
    }
    static void press(QDialog &box, QMessageBox::StandardButton button)
    {
        static_cast<QMessageBox &>(box).button(button)->click();
    }
    QString writeScript(const QByteArray &lines)
    {
        QFile file(path("commands.scr"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines);
        return file.fileName();
    }
};

} // namespace

TEST_F(FileCommands, NewOpenAndCloseDoWhatTheySay)
{
    enter("NEW");
    enter(QString(text("OPEN ") + write("a.dxf")));
    EXPECT_EQ(titles(), list({ "Drawing1.dxf", "a.dxf" }));

    enter("CLOSE");
    enter("CLOSE");

    EXPECT_EQ(titles(), QStringList());
    EXPECT_THROW(enter("CLOSE"), OdError);
}

TEST_F(FileCommands, AFileThatCanNotBeReadIsToldWithItsReason)
{
    QFile letter(path("letter.dxf"));
    ASSERT_TRUE(letter.open(QIODevice::WriteOnly));
    letter.write("Dear Sir,\n");
    letter.close();

    EXPECT_THROW(enter(QString(text("OPEN ") + letter.fileName())), CKvDxfError);
    EXPECT_THROW(enter(QString(text("OPEN ") + path("nowhere.dxf"))), CKvDxfError);

    EXPECT_EQ(titles(), QStringList());
}

TEST_F(FileCommands, SavingWithoutAChangeWritesTheSameBytes)
{
    const QByteArray before = contentOf(write("a.dxf"));
    open(path("a.dxf"));

    enter("QSAVE");
    enter(QString(text("SAVEAS ") + path("copy")));

    EXPECT_EQ(contentOf(path("a.dxf")), before);
    EXPECT_EQ(contentOf(path("copy.dxf")), before);
    EXPECT_EQ(titles(), list({ "copy.dxf" }));
}

TEST_F(FileCommands, AFileThatWasTypedIsReplacedOnlyAfterAYes)
{
    open(write("a.dxf"));
    const QByteArray other = contentOf(write("b.dxf", 4));
    const QByteArray saveAs = QByteArray("SAVEAS ") + path("b").toUtf8();

    QTimer::singleShot(0, &window(), [&] {
        const QString question = child<QLabel>(window(), "CommandPrompt")->text();
        EXPECT_TRUE(question.contains(QLatin1String("b.dxf exists already")))
            << qPrintable(question);
        window().panel().cancel();
    });
    enter(QString::fromUtf8(saveAs));
    EXPECT_EQ(contentOf(path("b.dxf")), other);
    enter(QString(text("LOADSCRIPT ") + writeScript(saveAs + "\nNo\n")));
    EXPECT_EQ(contentOf(path("b.dxf")), other);
    EXPECT_EQ(titles(), list({ "a.dxf" }));
    enter(QString(text("LOADSCRIPT ") + writeScript(saveAs + "\nYes\n")));

    EXPECT_EQ(contentOf(path("b.dxf")), contentOf(path("a.dxf")));
    EXPECT_EQ(titles(), list({ "b.dxf" }));
}

TEST_F(FileCommands, TheDialogAsksAboutTheFileThatItsSuffixMakes)
{
    open(write("a.dxf"));
    const QByteArray other = contentOf(write("b.dxf", 4));
    QString question;
    CKvModalScript script;
    script.answer(text("QFileDialog"), [&](QDialog &dialog) {
        auto &chooser = static_cast<QFileDialog &>(dialog);
        script.answer(text("QMessageBox"), [&](QDialog &box) {
            question = static_cast<QMessageBox &>(box).text();
            press(box, QMessageBox::No);
        });
        child<QLineEdit>(chooser, "fileNameEdit")->setText(text("b"));
        child<QDialogButtonBox>(chooser, "buttonBox")->button(QDialogButtonBox::Save)->click();
        chooser.reject();
    });

    enter("SAVEAS");

    EXPECT_TRUE(question.startsWith(QLatin1String("b.dxf already exists"))) << qPrintable(question);
    EXPECT_EQ(contentOf(path("b.dxf")), other);
    EXPECT_EQ(titles(), list({ "a.dxf" }));
}

TEST_F(FileCommands, ANewDrawingAsksForItsNameWhenItIsSaved)
{
    enter("NEW");

    enter(QString(text("QSAVE ") + path("named.dxf")));

    EXPECT_EQ(titles(), list({ "named.dxf" }));
    EXPECT_TRUE(contentOf(path("named.dxf")).contains("AC1032"));
}

TEST_F(FileCommands, ADrawingOutOfADwgFileIsSavedAsDxfUnderANameThatTheUserGives)
{
    const CKvDwgProgram program(write("made.dxf"));
    CKvDwgProgram::writeDwg(path("plan.dwg"));
    open(path("plan.dwg"));
    changeLayer("L0", 5);
    QStringList proposed;
    CKvModalScript script;
    script.answer(text("QFileDialog"), [&](QDialog &dialog) {
        proposed = static_cast<QFileDialog &>(dialog).selectedFiles();
        dialog.accept();
    });

    enter("QSAVE");

    EXPECT_EQ(proposed, QStringList { path("plan.dxf") });
    EXPECT_EQ(titles(), list({ "plan.dxf" }));
    EXPECT_TRUE(CKvDwgProgram::isAsWritten(path("plan.dwg")));
    EXPECT_NE(contentOf(path("plan.dxf")), contentOf(path("made.dxf")));
    EXPECT_THROW(enter(QString(text("SAVEAS ") + path("plan.dwg"))), CKvDxfError);
    EXPECT_TRUE(CKvDwgProgram::isAsWritten(path("plan.dwg")));
}

TEST_F(FileCommands, AFileThatChangedOnDiskIsReplacedOnlyAfterAYes)
{
    open(write("a.dxf"));
    changeLayer("L0", 5);
    const QByteArray others = contentOf(write("a.dxf", 4));
    CKvModalScript script;
    script.answer(text("QMessageBox"), [](QDialog &box) {
        EXPECT_TRUE(
            static_cast<QMessageBox &>(box).text().contains(QLatin1String("has changed on disk")));
        press(box, QMessageBox::No);
    });

    enter("QSAVE");
    EXPECT_EQ(contentOf(path("a.dxf")), others);
    EXPECT_TRUE(m_desktop->activeDocument()->isModified());
    script.answer(text("QMessageBox"), [](QDialog &box) { press(box, QMessageBox::Yes); });
    enter("QSAVE");

    EXPECT_NE(contentOf(path("a.dxf")), others);
    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}

TEST_F(FileCommands, AFileThatIsOpenElsewhereIsToldAndReplacedOnlyAfterAYes)
{
    const std::unique_ptr<CKvHostDocument> other = CKvHostDocument::open(write("a.dxf"));
    enter(QString(text("OPEN ") + path("a.dxf")));
    EXPECT_EQ(said(), list({ "a.dxf is open elsewhere too." }));
    changeLayer("L0", 5);
    const QByteArray before = contentOf(path("a.dxf"));
    CKvModalScript script;
    script.answer(text("QMessageBox"), [](QDialog &box) {
        EXPECT_TRUE(
            static_cast<QMessageBox &>(box).text().contains(QLatin1String("is open elsewhere")));
        press(box, QMessageBox::No);
    });

    enter("QSAVE");

    EXPECT_EQ(contentOf(path("a.dxf")), before);
}

TEST_F(FileCommands, AFileThatCanNotBeWrittenLeavesTheWorkUnsaved)
{
    open(write("a.dxf"));
    changeLayer("L0", 5);

    EXPECT_THROW(enter(QString(text("SAVEAS ") + path("no-folder/a.dxf"))), CKvDxfError);

    EXPECT_TRUE(m_desktop->activeDocument()->isModified());
    EXPECT_EQ(titles(), list({ "a.dxf" }));
}

TEST_F(FileCommands, AScriptRunsItsLines)
{
    write("a.dxf");
    const QString script =
        writeScript(QByteArray("; opens and saves\nOPEN ") + path("a.dxf").toUtf8()
                    + "\nSETVAR LTSCALE 3\nSAVEAS " + path("out.dxf").toUtf8() + "\n");

    enter(QString(text("LOADSCRIPT ") + script));

    EXPECT_EQ(titles(), list({ "out.dxf" }));
    EXPECT_TRUE(contentOf(path("out.dxf")).contains("$LTSCALE\n 40\n3\n"));
    EXPECT_THROW(enter(QString(text("LOADSCRIPT ") + path("none.scr"))), OdError);
}

TEST_F(FileCommands, AScriptCanGiveUpChanges)
{
    open(write("a.dxf"));
    changeLayer("L0", 5);

    enter(QString(text("LOADSCRIPT ") + writeScript("CLOSE Y\n")));

    EXPECT_EQ(titles(), QStringList());
}

TEST_F(FileCommands, QuitClosesTheWindowBehindTheScript)
{
    open(write("a.dxf"));
    changeLayer("L0", 5);

    enter(QString(text("LOADSCRIPT ") + writeScript("QUIT Y\nSETVAR LTSCALE 2\n")));
    EXPECT_TRUE(window().isVisible());
    QCoreApplication::processEvents();

    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(titles(), QStringList());
}

TEST_F(FileCommands, StartOpensTheDrawingsAndRunsTheScript)
{
    CKvDesktopOptions options;
    options.settingsFile = path("other.ini");
    options.loadsModule = false;
    options.drawings = QStringList({ write("a.dxf"), path("nowhere.dxf"), write("b b.dxf") });
    options.scriptFile = writeScript("SETVAR LTSCALE 7\n");
    m_desktop.reset();
    m_desktop = std::make_unique<CKvDesktop>(options);
    m_desktop->start();

    for (int i = 0; i < 200 && m_desktop->commandLine().hasPosted(); ++i) {
        QTest::qWait(5);
    }

    EXPECT_EQ(titles(), list({ "a.dxf", "b b.dxf" }));
    EXPECT_TRUE(m_desktop->activeDocument()->isModified());
}
