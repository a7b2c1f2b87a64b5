// SPDX-License-Identifier: MIT
#pragma once

#include "CKvApplicationFrame.h"
#include "CKvDocumentManager.h"
#include "CKvFakeServices.h"

#include <QWidget>

#include <functional>
#include <vector>

/// Services of a host with a window and documents. Writes requests and posts down among the other
/// calls: "evaluate 5005=_DWGSTANDARDS 5003=1 5000", "post 5005=_INTERSTATEVERIFY 5000".
class CKvSessionHost : public CKvFakeServices, public CKvApplicationFrame, public CKvDocumentManager
{
public:
    void setPreferredStandardsFile(const QString &path) { m_preferred = CKvString(path); }
    /// What the user does while a request runs.
    void whenAsked(const std::function<void()> &action) { m_action = action; }
    /// What happens when a command is posted; it runs at once.
    void whenPosted(const std::function<void()> &action) { m_postAction = action; }
    /// From now on no drawing belongs to a document.
    void forgetDocuments() { m_knowsDocuments = false; }
    /// The host has no document manager and no window.
    void withoutWindows() { m_hasWindows = false; }
    const std::vector<CKvDocumentManagerReactor *> &documentReactors() const { return m_reactors; }
    /// The calls that begin with this word.
    std::vector<std::string> callsOf(const std::string &word) const;

    CKvString preferredStandardsFile() const override { return m_preferred; }
    CKvApplicationFrame *applicationFrame() override;
    QWidget *mainWindow() override { return &m_mainWindow; }
    CKvDocumentManager *documentManager() override;
    OdResBufPtr evaluateExpression(CKvExpressionParserData &data, OdResBufPtr request) override;
    void postCommand(OdResBufPtr request) override;

    /// The active document when the drawing is its own, otherwise null.
    CKvDocument *documentForDatabase(OdDbDatabase *database) override;
    void addDocumentReactor(CKvDocumentManagerReactor *reactor) override;
    void removeDocumentReactor(CKvDocumentManagerReactor *reactor) override;

private:
    QWidget m_mainWindow;
    CKvString m_preferred;
    std::function<void()> m_action;
    std::function<void()> m_postAction;
    bool m_knowsDocuments = true;
    bool m_hasWindows = true;
    std::vector<CKvDocumentManagerReactor *> m_reactors;
};
