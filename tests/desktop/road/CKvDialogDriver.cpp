// SPDX-License-Identifier: MIT
#include "CKvDialogDriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace
{

constexpr int kLookMs = 5;

template <class T> T &child(QDialog &dialog, const char *name)
{
    T *found = dialog.findChild<T *>(QString::fromLatin1(name));
    if (!found) {
        std::fprintf(stderr, "there is no %s\n", name);
        std::exit(8);
    }
    return *found;
}

QString label(QDialog &dialog, const char *name)
{
    return child<QLabel>(dialog, name).text().trimmed();
}

QAbstractButton &boxButton(QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    return *child<QDialogButtonBox>(dialog, "buttonBox").button(button);
}

} // namespace

CKvDialogDriver::CKvDialogDriver(QStringList plan)
    : m_plan(std::move(plan))
{
    m_quits = m_plan.removeAll(QStringLiteral("quit")) > 0;
    connect(&m_timer, &QTimer::timeout, this, &CKvDialogDriver::look);
    m_timer.start(kLookMs);
}

void CKvDialogDriver::say(const QString &line)
{
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

void CKvDialogDriver::clickLater(QAbstractButton &button)
{
    m_isClicking = true;
    QTimer::singleShot(0, &button, [this, &button] {
        m_isClicking = false;
        button.click();
    });
}

void CKvDialogDriver::look()
{
    if (m_isClicking) {
        return;
    }
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog) {
        if (m_hasSummary && std::exchange(m_quits, false)) {
            emit finished();
        }
        return;
    }
    const QString kind = QString::fromLatin1(dialog->metaObject()->className());
    if (kind == QLatin1String("CKvVerifyStandards")) {
        answerVerification(*dialog);
    } else if (kind == QLatin1String("CKvVerfiyCompleteMessage")) {
        answerSummary(*dialog);
    } else if (kind == QLatin1String("CKvStandardViolationMessage")) {
        answerViolationMessage(*dialog);
    } else {
        say(QString(QLatin1String("unexpected ") + kind));
        dialog->reject();
    }
}

void CKvDialogDriver::answerVerification(QDialog &dialog)
{
    if (m_hasSummary) {
        clickLater(boxButton(dialog, QDialogButtonBox::Close));
        return;
    }
    const QString name = label(dialog, "ObjectNameLabel");
    // Before its first step the dialog is blank.
    if (name.isEmpty()) {
        return;
    }
    const QString action = m_plan.isEmpty() ? QStringLiteral("next") : m_plan.takeFirst();
    const QString ignoredBy = label(dialog, "IgnoredByLoginNameLabel");
    say(QStringLiteral("%1 %2: %3%4")
            .arg(label(dialog, "ObjectTypeLabel"),
                 name,
                 action,
                 ignoredBy.isEmpty() ? QString()
                                     : QString(QLatin1String(" ignored by ") + ignoredBy)));
    if (action == QLatin1String("fix")) {
        clickLater(child<QPushButton>(dialog, "FixIssueButton"));
        return;
    }
    if (action == QLatin1String("ignore")) {
        child<QCheckBox>(dialog, "IgnoreViolationCheckBox").click();
    }
    clickLater(child<QPushButton>(dialog, "NextIssueButton"));
}

void CKvDialogDriver::answerSummary(QDialog &dialog)
{
    m_hasSummary = true;
    say(QStringLiteral("summary %1 %2 %3 %4")
            .arg(label(dialog, "num_violations"),
                 label(dialog, "num_autoFix"),
                 label(dialog, "num_manualFix"),
                 label(dialog, "num_Ignored")));
    clickLater(boxButton(dialog, QDialogButtonBox::Close));
}

void CKvDialogDriver::answerViolationMessage(QDialog &dialog)
{
    say(label(dialog, "label"));
    child<QRadioButton>(dialog, "runStdVerification").click();
    clickLater(boxButton(dialog, QDialogButtonBox::Ok));
}
