// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QStringList>

/// The line that commands are typed in. Space and Enter end a word, the arrow keys bring back what
/// was typed before, Escape breaks off.
class CKvCommandEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CKvCommandEdit(QWidget *parent = nullptr);

    /// @param areAllowed true: a blank is part of the text and only Enter ends it.
    void setBlanksAllowed(bool areAllowed) { m_areBlanksAllowed = areAllowed; }
    /// As if the key had been pressed here.
    void type(QKeyEvent *event) { keyPressEvent(event); }

signals:
    /// The user ended the line, which is empty again.
    void entered(const QString &text);
    void brokenOff();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void submit();
    void recall(int step);

    bool m_areBlanksAllowed = false;
    QStringList m_history;
    int m_at = 0;
};
