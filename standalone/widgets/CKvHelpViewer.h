// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QString>

class QTextBrowser;

/// Shows help topics in a window of its own, from files named after their numbers. While it lives,
/// it is what showHelpTopic uses.
class CKvHelpViewer
{
public:
    CKvHelpViewer();
    ~CKvHelpViewer();
    CKvHelpViewer(const CKvHelpViewer &) = delete;
    CKvHelpViewer &operator=(const CKvHelpViewer &) = delete;

    void show(int topic);
    /// Null when none is open.
    QTextBrowser *window() const;

    /// Full path of a topic's file; empty when there is none.
    static QString fileOf(int topic);

private:
    QPointer<QTextBrowser> m_window;
};
