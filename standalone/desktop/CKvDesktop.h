// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDesktopCommand.h"
#include "CKvHelpViewer.h"
#include "CKvSession.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class CKvHostDocument;
class CKvMainWindow;

/// What kvdesk is started with.
struct CKvDesktopOptions {
    /// Empty for the place where the system keeps settings.
    QString settingsFile;
    /// File of the module; empty for the one beside the program.
    QString moduleFile;
    bool loadsModule = true;
    QString scriptFile;
    QStringList drawings;
    /// "light", "dark", or empty for what was used last.
    QString palette;
};

/// A session with its window and its commands. Needs a QApplication.
class CKvDesktop
{
public:
    explicit CKvDesktop(const CKvDesktopOptions &options = CKvDesktopOptions());
    ~CKvDesktop();
    CKvDesktop(const CKvDesktop &) = delete;
    CKvDesktop &operator=(const CKvDesktop &) = delete;

    /// Loads the module, opens the drawings and runs the script that the options name. What fails
    /// is told in the command history.
    void start();

    CKvSession &session() { return m_session; }
    CKvMainWindow &window() { return *m_window; }
    CKvCommandLine &commandLine() { return m_session.commandLine(); }
    /// Null when none is open.
    CKvHostDocument *activeDocument() const { return m_session.activeDocument(); }
    /// @throws OdError when none is open: a command that needs a drawing can't go on.
    CKvHostDocument &requireDocument() const;

    /// @param action false when the command failed.
    void addCommand(const char *name, CKvDesktopCommand::Action action);
    /// @param name "light" or "dark".
    void usePalette(const QString &name);

private:
    void loadModule();

    CKvDesktopOptions m_options;
    CKvSession m_session;
    CKvHelpViewer m_help;
    std::vector<std::unique_ptr<CKvDesktopCommand>> m_commands;
    std::unique_ptr<CKvMainWindow> m_window;
};
