// SPDX-License-Identifier: MIT
#include "CKvHostDocument.h"

#include "CKvDocumentManagerReactor.h"
#include "CKvDrawingBuilder.h"
#include "CKvDwgProgram.h"
#include "CKvDxfError.h"
#include "CKvSession.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "findSupportFile.h"
#include "hostVariables.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// Writes down what it hears, with the titles of the documents.
class CKvDocumentLog : public CKvDocumentManagerReactor
{
public:
    QStringList events;

    void DocumentCreateStarted(CKvDocument *) override { events << text("started"); }
    void DocumentCreated(CKvDocument *document) override { note("created", document); }
    void DocumentToBeDestroyed(CKvDocument *document) override { note("leaving", document); }
    void DocumentDestroyed(CKvDocument *) override { events << text("destroyed"); }
    void DatabaseAttached(CKvDocument *document) override { note("attached", document); }
    void DatabaseDetached(CKvDocument *document) override { note("detached", document); }
    void DocumentToBeActivated(CKvDocument *document) override { note("activating", document); }
    void DocumentToBeDeactivated(CKvDocument *document) override { note("deactivating", document); }
    void DocumentActivated(CKvDocument *document) override { note("activated", document); }
    void DocumentCreateCanceled(CKvDocument *) override { events << text("cancelled"); }
    void DocumentBecameCurrent(CKvDocument *document) override
    {
        EXPECT_EQ(document, ACTIVE_DOCUMENT());
        note("current", document);
    }
    void DocumentPreOpen(CKvDocument *, const CKvString &path, int, int) override
    {
        events << QString(text("open ") + path.toQString().section(QLatin1Char('/'), -1));
    }

private:
    void note(const char *event, CKvDocument *document)
    {
        events << QString(
            text(event) + QLatin1Char(' ')
            + (document ? static_cast<CKvHostDocument *>(document)->title() : text("none")));
    }
};

class HostDocument : public testing::Test
{
protected:
    QString write(const char *name, int layers = 1)
    {
        CKvDrawingBuilder drawing;
        for (int i = 0; i < layers; ++i) {
            drawing.layer(QString(QLatin1Char('L') + QString::number(i)));
        }
        QString path = m_folder.filePath(text(name));
        drawing.saveTo(path);
        return path;
    }
    CKvHostDocumentManager &documents() { return *m_session.documentManager(); }
    static void changeLayer(const CKvHostDocument &document)
    {
        const OdDbLayerTablePtr layers(document.GetKvDatabase()->getLayerTableId().openObject());
        OdDbLayerTableRecordPtr(layers->getAt(OdString("L0")).openObject(OdDb::kForWrite))
            ->setColor(OdCmColor::byIndex(5));
    }

    QTemporaryDir m_folder;
    CKvSession m_session { m_folder.filePath(QStringLiteral("settings.ini")) };
};

} // namespace

TEST_F(HostDocument, OpeningAndClosingIsToldStepByStep)
{
    CKvDocumentLog log;
    documents().addDocumentReactor(&log);

    documents().open(write("a.dxf"));
    CKvHostDocument &b = documents().open(write("b.dxf"));
    const QStringList opened = log.events;
    log.events.clear();
    documents().close(b);
    documents().close(*documents().active());
    documents().removeDocumentReactor(&log);

    EXPECT_EQ(opened,
              QStringList({ text("open a.dxf"),
                            text("started"),
                            text("attached a.dxf"),
                            text("created a.dxf"),
                            text("activating a.dxf"),
                            text("activated a.dxf"),
                            text("current a.dxf"),
                            text("open b.dxf"),
                            text("started"),
                            text("attached b.dxf"),
                            text("created b.dxf"),
                            text("deactivating a.dxf"),
                            text("activating b.dxf"),
                            text("activated b.dxf"),
                            text("current b.dxf") }));
    EXPECT_EQ(log.events,
              QStringList({ text("deactivating b.dxf"),
                            text("leaving b.dxf"),
                            text("detached b.dxf"),
                            text("destroyed"),
                            text("activating a.dxf"),
                            text("activated a.dxf"),
                            text("current a.dxf"),
                            text("deactivating a.dxf"),
                            text("leaving a.dxf"),
                            text("detached a.dxf"),
                            text("destroyed"),
                            text("current none") }));
    EXPECT_EQ(ACTIVE_DOCUMENT(), nullptr);
}

TEST_F(HostDocument, AFileThatIsNoDrawingLeavesNoDocument)
{
    QFile file(m_folder.filePath(text("letter.dxf")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Dear Sir,\n");
    file.close();
    CKvDocumentLog log;
    documents().addDocumentReactor(&log);

    EXPECT_THROW(documents().open(file.fileName()), CKvDxfError);

    EXPECT_EQ(log.events,
              QStringList({ text("open letter.dxf"), text("started"), text("cancelled") }));
    EXPECT_TRUE(documents().documents().empty());
    documents().removeDocumentReactor(&log);
}

TEST_F(HostDocument, AnOpenFileBecomesActiveAgain)
{
    const QString path = write("a.dxf");
    CKvHostDocument &a = documents().open(path);
    documents().open(write("b.dxf"));

    CKvHostDocument &again = documents().open(path);

    EXPECT_EQ(&again, &a);
    EXPECT_EQ(ACTIVE_DOCUMENT(), &a);
    EXPECT_EQ(documents().documents().size(), 2U);
}

TEST_F(HostDocument, ADrawingKnowsItsDocumentAndItsFile)
{
    const QString path = write("a.dxf");
    CKvHostDocument &document = documents().open(path);
    const OdDbDatabasePtr stranger = CKvDrawingBuilder().open();

    EXPECT_EQ(documents().documentForDatabase(document.GetKvDatabase()), &document);
    EXPECT_EQ(documents().documentForDatabase(stranger.get()), nullptr);
    EXPECT_EQ(documents().documentForDatabase(nullptr), nullptr);
    EXPECT_EQ(document.GetKvDatabase()->drawingFileName(), CKvString(path));
    EXPECT_EQ(document.commandContext()->document(), &document);
}

TEST_F(HostDocument, AfterSavingElsewhereItStandsForTheNewFile)
{
    CKvHostDocument &document = documents().open(write("a.dxf"));
    const QString target = m_folder.filePath(text("b.dxf"));
    changeLayer(document);
    EXPECT_TRUE(document.isModified());

    document.saveAs(target);

    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(document.title(), text("b.dxf"));
    EXPECT_EQ(document.GetKvDatabase()->drawingFileName(), CKvString(target));
    EXPECT_EQ(document.hindranceTo(target), CKvHostDocument::Hindrance::None);
}

TEST_F(HostDocument, AFileThatChangedOnDiskIsNotOverwrittenUnasked)
{
    const QString path = write("a.dxf");
    CKvHostDocument &document = documents().open(path);
    EXPECT_EQ(document.hindranceTo(path), CKvHostDocument::Hindrance::None);

    write("a.dxf", 3);

    EXPECT_EQ(document.hindranceTo(path), CKvHostDocument::Hindrance::ChangedOnDisk);
    document.saveAs(path);
    EXPECT_EQ(document.hindranceTo(path), CKvHostDocument::Hindrance::None);
}

TEST_F(HostDocument, AFileThatIsOpenElsewhereIsNotOverwrittenUnasked)
{
    const QString path = write("a.dxf");
    CKvHostDocument &document = documents().open(path);
    const std::unique_ptr<CKvHostDocument> other = CKvHostDocument::open(path);
    CKvHostDocument &third = documents().open(write("b.dxf"));

    EXPECT_EQ(document.hindranceTo(path), CKvHostDocument::Hindrance::None);
    EXPECT_EQ(other->hindranceTo(path), CKvHostDocument::Hindrance::OpenElsewhere);
    EXPECT_EQ(third.hindranceTo(path), CKvHostDocument::Hindrance::OpenElsewhere);
    EXPECT_EQ(third.hindranceTo(m_folder.filePath(text("new.dxf"))),
              CKvHostDocument::Hindrance::None);
}

TEST_F(HostDocument, ANewDrawingHasATitleAndNoFile)
{
    const QString path = findSupportFile(text("new.dxf"), nullptr, {});
    ASSERT_FALSE(path.isEmpty());

    CKvHostDocument &first = documents().openNew(path);
    CKvHostDocument &second = documents().openNew(path);

    EXPECT_EQ(first.title(), text("Drawing1.dxf"));
    EXPECT_EQ(second.title(), text("Drawing2.dxf"));
    EXPECT_TRUE(first.path().isEmpty());
    EXPECT_FALSE(first.isModified());
    EXPECT_TRUE(first.GetKvDatabase()->drawingFileName().isEmpty());
    const OdDbLayerTablePtr layers(first.GetKvDatabase()->getLayerTableId().openObject());
    EXPECT_TRUE(layers->has(OdString("0")));
}

TEST_F(HostDocument, TheFolderOfADrawingIsSearchedFirst)
{
    const QString path = write("a.dxf");
    CKvHostDocument &document = documents().open(path);

    EXPECT_EQ(m_session.findFile(CKvString("a.dxf"), 0, document.GetKvDatabase(), 0),
              CKvString(path));
    EXPECT_TRUE(m_session.findFile(CKvString("a.dxf"), 0, nullptr, 0).isEmpty());
    m_session.settings().setSupportPaths({ m_folder.path() });
    EXPECT_EQ(m_session.findFile(CKvString("a.dxf"), 0, nullptr, 0), CKvString(path));
}

TEST_F(HostDocument, TheSelectionCanBeCleared)
{
    CKvHostDocument &document = documents().open(write("a.dxf"));
    OdDbObjectIdArray ids;
    ids.append(document.GetKvDatabase()->getLayerTableId());
    document.selectionSet()->select(ids);

    EXPECT_EQ(document.selectionSet()->ss_impl()->selectedObjectIds(), ids);
    document.selectionSet()->ss_impl()->clearSelection();

    EXPECT_TRUE(document.selectionSet()->selectedObjectIds().isEmpty());
}

TEST_F(HostDocument, ThePostingOfViolationsIsAVariableOfTheHost)
{
    CKvHostDocument &document = documents().open(write("a.dxf"));
    const auto value = [&] {
        return document.GetKvDatabase()->getSysVar(OdString("standardsViolation"))->getInt16();
    };

    EXPECT_EQ(value(), 2);
    EXPECT_TRUE(setHostVariable(text("STANDARDSVIOLATION"), text("0")));
    EXPECT_EQ(value(), 0);
    EXPECT_THROW(setHostVariable(text("STANDARDSVIOLATION"), text("3")),
                 OdError_InvalidSysvarValue);
    EXPECT_THROW(setHostVariable(text("STANDARDSVIOLATION"), text("on")),
                 OdError_InvalidSysvarValue);
    EXPECT_FALSE(setHostVariable(text("LTSCALE"), text("2")));
    EXPECT_EQ(value(), 0);
}

TEST_F(HostDocument, SettingsOutliveTheSession)
{
    const QString file = m_folder.filePath(text("kept.ini"));
    {
        CKvStoredSettings settings(file);
        EXPECT_EQ(settings.preferredStandardsFile(), CKvString("None"));
        EXPECT_FALSE(settings.fixAutomatically());
        EXPECT_FALSE(settings.showIgnored());
        settings.setPreferredStandardsFile(text("/office.dxf"));
        settings.setFixAutomatically(true);
        settings.setShowIgnored(true);
        settings.setDisabledCategories({ text("layers") });
        for (int i = 0; i < 12; ++i) {
            settings.addRecentFile(QString::number(i));
        }
        settings.addRecentFile(text("5"));
    }

    const CKvStoredSettings settings(file);

    EXPECT_EQ(settings.preferredStandardsFile(), CKvString("/office.dxf"));
    EXPECT_TRUE(settings.fixAutomatically());
    EXPECT_TRUE(settings.showIgnored());
    EXPECT_EQ(settings.disabledCategories(), QStringList({ text("layers") }));
    EXPECT_EQ(settings.recentFiles().join(QLatin1Char(' ')), text("5 11 10 9 8 7 6 4 3"));
}

TEST_F(HostDocument, AFileThatIsNoModuleIsRefused)
{
    const QString path = write("a.dxf");

    EXPECT_THROW(m_session.modules().load(path), OdError);
    EXPECT_EQ(m_session.modules().paths(), QStringList());
    EXPECT_FALSE(m_session.modules().unload(path));
}

TEST_F(HostDocument, ADwgFileIsReadByTheProgramOnThePathAndNeverReplaced)
{
    const QString made = write("made.dxf");
    const CKvDwgProgram program(made);
    const QString path = m_folder.filePath(text("plan.dwg"));
    CKvDwgProgram::writeDwg(path);

    CKvHostDocument &document = documents().open(path);
    changeLayer(document);

    EXPECT_EQ(document.title(), text("plan.dwg"));
    EXPECT_FALSE(document.hasWritableFile());
    EXPECT_THROW(document.saveAs(path), CKvDxfError);
    EXPECT_TRUE(CKvDwgProgram::isAsWritten(path));
    EXPECT_TRUE(document.isModified());
    document.saveAs(m_folder.filePath(text("plan.dxf")));
    EXPECT_TRUE(document.hasWritableFile());
    EXPECT_FALSE(document.isModified());
    changeLayer(document);
    document.saveAs(document.path());
    EXPECT_TRUE(CKvDwgProgram::isAsWritten(path));
}

TEST_F(HostDocument, StandardsThatASessionReadsLastWhenTheirFileIsShortened)
{
    const QString path = write("office.dxf", 3);
    const OdDbDatabasePtr standards =
        m_session.hostAppServices()->readFile(OdString(path), false, true, 64, OdString());

    ASSERT_TRUE(QFile::resize(path, 0));

    const OdDbLayerTablePtr layers(standards->getLayerTableId().openObject());
    EXPECT_TRUE(layers->has(OdString("L2")));
    const OdDbLayerTableRecordPtr last(layers->getAt(OdString("L2")).openObject());
    EXPECT_EQ(last->getName(), OdString("L2"));
}
