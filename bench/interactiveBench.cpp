// SPDX-License-Identifier: MIT
#include "CKvBenchFiles.h"
#include "CKvCommand.h"
#include "CKvCommandContext.h"
#include "CKvHostDocument.h"
#include "CKvSession.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "processorTime.h"
#include "standardsList.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

#include <benchmark/benchmark.h>

namespace
{

constexpr char kMessage[] = "CKvStandardViolationMessage";

/// Gives LAYER-1 another colour at each run, never that of the standard.
class CKvRecolorCommand : public OdStaticRxObject<CKvCommand>
{
public:
    OdString globalName() const override { return OdString("_RECOLOR"); }
    OdString localName() const override { return OdString("RECOLOR"); }
    int executeCommand(CKvCommandContext *context) override
    {
        const OdDbDatabase &drawing = *context->document()->GetKvDatabase();
        const OdDbLayerTablePtr layers(drawing.getLayerTableId().openObject());
        const OdDbLayerTableRecordPtr layer(
            layers->getAt(OdString("LAYER-1")).openObject(OdDb::kForWrite));
        m_color = m_color == 1 ? 2 : 1;
        layer->setColor(OdCmColor::byIndex(m_color));
        return kNormal;
    }

private:
    int m_color = 1;
};

/// Notes when the message comes up, and keeps the object.
class CKvMessageWatch : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        const bool isMessage = dialog && qstrcmp(dialog->metaObject()->className(), kMessage) == 0;
        if (isMessage && event->type() == QEvent::Show) {
            shownAt = processorSeconds();
            QMetaObject::invokeMethod(dialog, "reject", Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

    /// Processor time; negative before the message.
    double shownAt = -1;
};

/// From the end of a command that breaks a standard to the message that says so.
void messageAfterAnEdit(benchmark::State &state)
{
    CKvBenchFiles &files = CKvBenchFiles::ofThisRun();
    CKvSession session(files.path(QStringLiteral("settings.ini")));
    session.settings().setStandardsViolation(1);
    CKvRecolorCommand recolor;
    session.commands().addCommand(&recolor);
    CKvHostDocument &document =
        session.documentManager()->open(files.drawingOf(int(state.range(0))));
    appendToStandardsList(*document.GetKvDatabase(), CKvString(files.standardsOf(50)));
    session.modules().load(QStringLiteral(KV_MODULE_FILE));
    CKvMessageWatch watch;
    qApp->installEventFilter(&watch);
    double seconds = 0;
    while (state.KeepRunning()) {
        watch.shownAt = -1;
        session.commandLine().run(QStringLiteral("RECOLOR"));
        const double ended = processorSeconds();
        while (watch.shownAt < 0) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        seconds += watch.shownAt - ended;
    }
    state.counters["message_ms"] = 1000 * seconds / double(state.iterations());
    session.documentManager()->close(document);
    session.modules().unloadAll();
    session.commands().removeCommand(&recolor);
}

BENCHMARK(messageAfterAnEdit)->Arg(1)->Arg(100)->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
