// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, the module's texts are translated into what tells where they come from:
/// "context|text|remark for translators".
class CKvTranslationNotes : public QTranslator
{
public:
    CKvTranslationNotes() { QCoreApplication::installTranslator(this); }
    ~CKvTranslationNotes() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context,
                      const char *text,
                      const char *remark,
                      int /*count*/) const override
    {
        // Qt has texts of its own.
        if (!QByteArray(context).startsWith("CKv")) {
            return {};
        }
        return QString::fromLatin1(QByteArray(context) + '|' + text + '|' + remark);
    }
};
