// SPDX-License-Identifier: MIT
#pragma once

#include "CKvContractClasses.h"
#include "CKvDialogHost.h"
#include "CKvModalScript.h"
#include "CKvScriptedPlugin.h"
#include "CKvTestDocument.h"
#include "CKvVerifyStandards.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QTableWidget;

/// A drawing whose layers break a standard, and the verify dialog over them, driven by clicks. Each
/// layer is offered a record of its own name from /std/office.dxf, which is recommended, and OTHER
/// from /std/second.dxf. Summaries are written down and closed.
///
///     CKvVerifyBench bench({ "A", "B" });
///     bench.show();
///     bench.click("FixIssueButton");
///     EXPECT_EQ(bench.shown(), "B");
class CKvVerifyBench
{
public:
    /// @param drawing receives the layers.
    explicit CKvVerifyBench(const QStringList &layers,
                            CKvDrawingBuilder drawing = CKvDrawingBuilder());
    /// Adds a failure for whatever was thrown and not asked for.
    ~CKvVerifyBench();
    CKvVerifyBench(const CKvVerifyBench &) = delete;
    CKvVerifyBench &operator=(const CKvVerifyBench &) = delete;

    CKvDialogHost &host() { return m_host; }
    CKvModalScript &script() { return m_script; }
    CKvScriptedPlugin &plugin() { return m_plugin; }
    CKvTestDocument &document() { return m_document; }
    /// Before it is shown.
    CKvStdsViolation &violation(unsigned index) { return m_violations[index]; }
    /// Puts a file into the drawing's list.
    void addStandardsFile(const char *path);
    void setCandidates(unsigned index, const QStringList &names, int recommended);
    /// As an audit finds a stamped object.
    void setIgnored(unsigned index, const char *user);

    /// The dialog as it is built, with the list.
    CKvVerifyStandards &dialog();
    /// Shows it and lets it take its first step.
    void show();
    /// Lets everything happen that is due.
    static void settle();
    void click(const char *button);
    void clickCandidate(int row);
    void press(const char *name, Qt::Key key);
    void pressInCandidates(Qt::Key key) { press("ReplaceWithTableWidget", key); }

    std::string text(const char *label);
    bool isOn(const char *name);
    /// Name of the object that is shown, empty between walks.
    std::string shown() { return text("ObjectNameLabel"); }
    /// The candidates, one a line, "*" on the marked one and ">" on the selected one:
    /// ">* A | office.dxf".
    std::string candidates();
    /// The preview, "Name | A | OTHER", one a line; blank rows are empty lines.
    std::string preview();
    /// The headers of the candidates and of the preview, with tooltips where they differ.
    std::string headers();
    /// "5, 0, 2, 0": violations, automatically fixed, manually fixed, ignored.
    const std::vector<std::string> &summaries() const { return m_summaries; }
    /// Takes what the plug-in was asked for since the last call, without previews.
    std::vector<std::string> takeRepairs();
    std::vector<std::string> takeCalls();
    /// Does what shall fail, and gives what was thrown.
    std::vector<std::string> failuresOf(const std::function<void()> &action);
    /// "300=anna 90=1", or "none".
    std::string stampOf(const char *layer) const;

    QTableWidget &table(const char *name);
    template <class T> T &widget(const char *name)
    {
        return *dialog().findChild<T *>(QString::fromLatin1(name));
    }

private:
    CKvContractClasses m_classes;
    CKvDialogHost m_host;
    CKvTestDocument m_document;
    CKvModalScript m_script;
    std::vector<std::string> m_calls;
    CKvScriptedPlugin m_plugin;
    OdArray<CKvStdsViolation> m_violations;
    std::vector<std::string> m_summaries;
    std::unique_ptr<CKvVerifyStandards> m_dialog;
};
