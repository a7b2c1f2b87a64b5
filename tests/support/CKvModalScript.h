// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

#include <functional>
#include <map>

/// Answers the modal dialogs that come up while it lives, as a user would: each by its class, once
/// it is up and nothing is in front of it. A dialog without an answer is a failure of the test and
/// is rejected.
///
///     CKvModalScript script;
///     script.answer("QMessageBox", [](QDialog &box) { box.accept(); });
class CKvModalScript : public QObject
{
public:
    using Answer = std::function<void(QDialog &)>;

    CKvModalScript();
    ~CKvModalScript() override;

    /// @param answer must close the dialog, or see to it that it is closed.
    void answer(const QString &className, const Answer &answer);
    /// The classes of the dialogs that came up, in their order.
    const QStringList &shown() const { return m_shown; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void giveAnswerLater(QDialog &dialog, int turns);
    void giveAnswer(QDialog &dialog);

    std::map<QString, Answer> m_answers;
    QStringList m_shown;
};
