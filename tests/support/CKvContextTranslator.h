// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <optional>

/// Translates every text by putting its context in front of it.
class CKvContextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context,
                      const char *sourceText,
                      const char *disambiguation,
                      int count) const override
    {
        // Qt has texts of its own.
        if (!QByteArray(context).startsWith("CKv")) {
            return {};
        }
        EXPECT_EQ(disambiguation, nullptr);
        EXPECT_EQ(count, -1);
        return QStringLiteral("<%1>").arg(QLatin1String(context)) + QLatin1String(sourceText);
    }
};

/// A test of a category with an application that translates from translate() on.
template <class CategoryTest> class CKvTranslatedTest : public CategoryTest
{
protected:
    void translate()
    {
        m_translator.emplace();
        QCoreApplication::installTranslator(&*m_translator);
    }
    void TearDown() override { m_translator.reset(); }

private:
    int m_argumentCount = 1;
    char m_program[8] = "program";
    char *m_arguments[2] = { m_program, nullptr };
    QCoreApplication m_application { m_argumentCount, m_arguments };
    std::optional<CKvContextTranslator> m_translator;
};
