// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDesktop.h"
#include "CKvDrawingBuilder.h"
#include "CKvModalScript.h"
#include "list.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// A desktop without the module, with settings and files of its own.
class CKvDesktopTest : public testing::Test
{
protected:
    CKvDesktopTest();
    ~CKvDesktopTest() override;

    static QString text(const char *utf8) { return QString::fromUtf8(utf8); }
    QString path(const char *name) const { return m_folder.filePath(text(name)); }
    /// Writes a drawing with a line and that many layers, L0 and so on.
    QString write(const char *name, int layers = 1) const;
    static QByteArray contentOf(const QString &path);

    CKvMainWindow &window() { return m_desktop->window(); }
    CKvSession &session() { return m_desktop->session(); }
    CKvHostDocument &open(const QString &path);
    /// As if it had been typed in the command line.
    void enter(const QString &line);
    void enter(const char *line) { enter(text(line)); }
    /// A change that a user could have made.
    void changeLayer(const char *name, int color);
    /// Until the picture is complete.
    void finishPicture();
    /// What was said in the command line, without the lines that were typed.
    QStringList said();
    /// A child of an object, of that name; fails the test when there is none.
    template <class T> static T *child(const QObject &parent, const char *name)
    {
        T *found = parent.findChild<T *>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<CKvDesktop> m_desktop;
};
