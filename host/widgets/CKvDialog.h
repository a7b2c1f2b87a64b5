// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

#include <QDialog>

/// Base of the host's dialogs. exec and done are those of QDialog.
class KV_HOST_API CKvDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param hasHelp true: F1 opens the help topic.
    explicit CKvDialog(QWidget *parent = nullptr,
                       bool hasHelp = true,
                       Qt::WindowFlags flags = Qt::WindowFlags());
    ~CKvDialog() override;

    /// Number of the help topic, 0 for none.
    virtual int helpContextId() const;

public slots:
    /// Opens the help topic.
    void Help();

protected:
    /// A dialog whose parent isn't seen stands over the main window.
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool m_hasHelp;
};
