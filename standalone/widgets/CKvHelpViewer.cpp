// SPDX-License-Identifier: MIT
#include "CKvHelpViewer.h"

#include "executableFolder.h"
#include "helpTopics.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QUrl>

namespace
{

/// Escape closes it, as it closes the dialog in front of which it stands.
class CKvHelpWindow : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->matches(QKeySequence::Cancel)) {
            close();
        } else {
            QTextBrowser::keyPressEvent(event);
        }
    }
};

} // namespace

CKvHelpViewer::CKvHelpViewer()
{
    setHelpTopicViewer([this](int topic) { show(topic); });
}

CKvHelpViewer::~CKvHelpViewer()
{
    setHelpTopicViewer({});
    delete m_window;
}

QString CKvHelpViewer::fileOf(int topic)
{
    const QString name = QStringLiteral("%1.html").arg(topic);
    const QStringList folders { executableFolder() + QLatin1String("/help"),
                                executableFolder() + QLatin1String("/../share/kvstandards/help"),
                                QStringLiteral(KV_HELP_FOLDER) };
    for (const QString &folder : folders) {
        const QFileInfo file(QDir(folder), name);
        if (file.isFile()) {
            return QDir::cleanPath(file.absoluteFilePath());
        }
    }
    return {};
}

void CKvHelpViewer::show(int topic)
{
    const QString file = fileOf(topic);
    if (file.isEmpty()) {
        return;
    }
    // A modal dialog takes input from all windows but its own: help is wanted most while one is
    // open.
    QWidget *parent = QApplication::activeModalWidget();
    if (!m_window || m_window->parentWidget() != parent) {
        delete m_window;
        m_window = new CKvHelpWindow(parent);
        m_window->setWindowFlag(Qt::Window);
        m_window->setObjectName(QStringLiteral("HelpWindow"));
        m_window->setAccessibleName(QObject::tr("Help"));
        m_window->resize(620, 560);
        m_window->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_window->setSource(QUrl::fromLocalFile(file));
    m_window->setWindowTitle(m_window->documentTitle());
    m_window->show();
    m_window->raise();
}

QTextBrowser *CKvHelpViewer::window() const
{
    return m_window;
}
