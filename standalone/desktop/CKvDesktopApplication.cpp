// SPDX-License-Identifier: MIT
#include "CKvDesktopApplication.h"

#include <QMessageBox>
#include <QStyleFactory>

#include <exception>

CKvDesktopApplication::CKvDesktopApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("kvdesk"));
    setApplicationDisplayName(QStringLiteral("KvStandards"));
    setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void CKvDesktopApplication::prepare()
{
    setAttribute(Qt::AA_EnableHighDpiScaling);
    setAttribute(Qt::AA_UseHighDpiPixmaps);
}

bool CKvDesktopApplication::notify(QObject *receiver, QEvent *event)
{
    // Whatever fails, the other documents with their unsaved work must survive.
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &failure) {
        showFailure(QString::fromUtf8(failure.what()));
    } catch (...) {
        showFailure(tr("Something unknown has failed."));
    }
    return true;
}

void CKvDesktopApplication::setFailureHandler(std::function<void(const QString &)> handler)
{
    m_handler = std::move(handler);
}

void CKvDesktopApplication::showFailure(const QString &sentence)
{
    if (m_handler) {
        m_handler(sentence);
        return;
    }
    QMessageBox box(QMessageBox::Warning,
                    applicationDisplayName(),
                    sentence,
                    QMessageBox::Ok,
                    activeModalWidget() ? activeModalWidget() : activeWindow());
    box.setObjectName(QStringLiteral("FailureMessage"));
    box.exec();
}
