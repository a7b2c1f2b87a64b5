// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"

#include "CKvCommandPanel.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "CKvStdsManager.h"
#include "OdError.h"
#include "deskPalette.h"
#include "desktopCommands.h"
#include "executableFolder.h"
#include "showStandardsSettings.h"

#include <QApplication>
#include <QFileInfo>

#include <exception>

namespace
{

QString moduleBesideProgram()
{
#ifdef _WIN32
    const QString name = QStringLiteral("KvStandards.dll");
#else
    const QString name = QStringLiteral("KvStandards.so");
#endif
    return QString(executableFolder() + QLatin1Char('/') + name);
}

/// A command with its one answer.
OdResBufPtr requestOf(const char *name, const QString &argument)
{
    OdResBufPtr command = OdResBuf::newRb(OdResBuf::kRtString);
    command->setString(OdString(name));
    OdResBufPtr answer = OdResBuf::newRb(OdResBuf::kRtString);
    answer->setString(OdString(argument));
    answer->setNext(OdResBuf::newRb(OdResBuf::kRtEnd));
    command->setNext(answer);
    return command;
}

/// Categories that the user has switched off stay so from one session to the next.
void restoreCategories(const CKvStoredSettings &settings)
{
    CKvStdsPluginList plugins;
    if (CKvStdsManager *manager = GetKvStandardManager()) {
        manager->plugins(plugins);
    }
    const QStringList disabled = settings.disabledCategories();
    for (const CKvStdsPluginsPtr &plugin : plugins) {
        if (disabled.contains(plugin->pluginId().toQString(), Qt::CaseInsensitive)) {
            plugin->setEnabled(false);
        }
    }
}

} // namespace

CKvDesktop::CKvDesktop(const CKvDesktopOptions &options)
    : m_options(options)
    , m_session(options.settingsFile)
    , m_window(std::make_unique<CKvMainWindow>(*this))
{
    addFileCommands(*this);
    addViewCommands(*this);
    addSettingCommands(*this);
    addLayerCommand(*this);
    addLineStyleCommand(*this);
    addTextStyleCommand(*this);
    addDimStyleCommand(*this);
    addEditCommands(*this);
    addEraseCommand(*this);
    addDrawCommands(*this);
    m_session.setApplicationFrame(m_window.get());
    m_session.setRequest(QStringLiteral("_DWGSTANDARDS"), [this](const OdResBufPtr &arguments) {
        showStandardsSettings(*this, arguments ? arguments->getInt16() : 1);
        return OdResBufPtr();
    });
    m_session.commandLine().setIdleTest([this] {
        return QApplication::activeModalWidget() == nullptr && !m_window->panel().isAsking();
    });
    const QString kept =
        m_session.settings().store().value(QStringLiteral("window/palette")).toString();
    usePalette(options.palette.isEmpty() ? kept : options.palette);
}

CKvDesktop::~CKvDesktop()
{
    // Documents and modules go while the window that shows them is still there.
    CKvHostDocumentManager &documents = *m_session.documentManager();
    while (!documents.documents().empty()) {
        documents.close(*documents.documents().back());
    }
    m_session.modules().unloadAll();
    m_session.setApplicationFrame(nullptr);
    m_window.reset();
    for (const std::unique_ptr<CKvDesktopCommand> &command : m_commands) {
        m_session.commands().removeCommand(command.get());
    }
}

void CKvDesktop::start()
{
    if (m_options.loadsModule) {
        loadModule();
    }
    // Posted, so that each runs once the message about the one before is closed.
    for (const QString &drawing : m_options.drawings) {
        m_session.commandLine().post(requestOf("_OPEN", drawing));
    }
    if (!m_options.scriptFile.isEmpty()) {
        m_session.commandLine().post(requestOf("_LOADSCRIPT", m_options.scriptFile));
    }
}

void CKvDesktop::loadModule()
{
    const bool isNamed = !m_options.moduleFile.isEmpty();
    const QString path = isNamed ? m_options.moduleFile : moduleBesideProgram();
    // The desktop is of use without the checks; the user learns why they are missing.
    try {
        m_session.modules().load(path);
        restoreCategories(m_session.settings());
    } catch (const std::exception &failure) {
        commandLine().print(QString::fromUtf8(failure.what()));
    }
}

CKvHostDocument &CKvDesktop::requireDocument() const
{
    if (CKvHostDocument *document = activeDocument()) {
        return *document;
    }
    throw OdError(OdResult::kInvalidInput, "No drawing is open.");
}

void CKvDesktop::addCommand(const char *name, CKvDesktopCommand::Action action)
{
    m_commands.push_back(
        std::make_unique<CKvDesktopCommand>(*this, QString::fromLatin1(name), std::move(action)));
    m_session.commands().addCommand(m_commands.back().get());
}

void CKvDesktop::usePalette(const QString &name)
{
    const bool isDark = name == QLatin1String("dark");
    QApplication::setPalette(isDark ? darkPalette() : lightPalette());
    m_session.settings().store().setValue(QStringLiteral("window/palette"),
                                          isDark ? QStringLiteral("dark")
                                                 : QStringLiteral("light"));
}
