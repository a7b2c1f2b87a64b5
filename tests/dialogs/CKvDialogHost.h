// SPDX-License-Identifier: MIT
#pragma once

#include "CKvApplicationFrame.h"
#include "CKvFakeServices.h"

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

/// A host whose settings and answers the test makes up. Its title is "Drafting".
class CKvDialogHost : public CKvFakeServices, public CKvApplicationFrame
{
public:
    void setFixAutomatically(bool isAutomatic) { m_fixAutomatically = isAutomatic; }
    void setShowIgnored(bool isShown) { m_showIgnored = isShown; }
    /// What the user does while the standards settings are open.
    void whenAsked(const std::function<void()> &action) { m_action = action; }
    /// What was asked of evaluateExpression, "5005=_DWGSTANDARDS 5003=3 5000", one a call.
    const std::vector<std::string> &requests() const { return m_requests; }

    QWidget *mainWindow() override { return &m_mainWindow; }
    CKvApplicationFrame *applicationFrame() override { return this; }
    OdString applicationTitle() const override { return OdString("Drafting"); }
    bool fixAutomatically() const override { return m_fixAutomatically; }
    bool showIgnored() const override { return m_showIgnored; }
    OdResBufPtr evaluateExpression(CKvExpressionParserData &data, OdResBufPtr request) override;

private:
    QWidget m_mainWindow;
    bool m_fixAutomatically = false;
    bool m_showIgnored = false;
    std::function<void()> m_action;
    std::vector<std::string> m_requests;
};
