// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDesktop.h"
#include "CKvDrawingBuilder.h"
#include "CKvModalScript.h"
#include "CKvRoadLog.h"
#include "dialogClicks.h"
#include "managerTimer.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// kvdesk with the module in it and plan.dxf open. The standard office.dws has WALLS in red and the
/// dimension style OFFICE; plan.dxf agrees with it but for the layer DOORS, which it has besides.
class CKvWatchedDeskTest : public testing::Test
{
protected:
    CKvWatchedDeskTest();
    ~CKvWatchedDeskTest() override;

    /// Of the record *ACTIVE in plan.dxf.
    static constexpr std::uint64_t kViewportHandle = 0xf3;

    static QString text(const char *utf8) { return QString::fromUtf8(utf8); }
    QString path(const char *name) const { return m_folder.filePath(text(name)); }
    void write(const char *name, const QByteArray &bytes) const;
    static QByteArray contentOf(const QString &path);

    CKvSession &session() { return m_desk->session(); }
    CKvHostDocument &document() { return m_desk->requireDocument(); }
    /// The drawing as saving would write it now.
    QByteArray bytes();
    /// As if it had been typed in the command line.
    void enter(const QString &line);
    void enter(const char *line) { enter(text(line)); }
    /// Runs lines as a script.
    void runScript(const QByteArray &lines);
    /// Changes a layer as no command does: with whatever runs at the time, or nothing.
    void recolor(int color, const char *layer = "WALLS");
    int colorOfWalls();
    /// What the user does once a command waits for an answer.
    void whenAsked(const std::function<void()> &action);
    void pressEscape();

    bool hasPosted() { return session().commandLine().hasPosted(); }
    /// Handles events until all that was posted has run.
    void runPosted();
    /// The user keeps each object that is told.
    void keepObject();
    /// The user verifies what is told, and passes over each violation.
    void verifyAndPassOver();
    /// The user repairs what is offered to be repaired, and passes over the rest.
    void verifyAndFix();
    /// How often the user was told of a violation.
    long told() const;

    QTemporaryDir m_folder;
    std::unique_ptr<CKvDesktop> m_desk;
    std::unique_ptr<CKvRoadLog> m_log;
    CKvModalScript m_user;
    /// "Layer: WALLS": the violations that verifications showed.
    std::vector<std::string> m_seen;

private:
    void answerVerification(const char *button);

    int m_summaries = 0;
};
