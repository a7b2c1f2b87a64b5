// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStandaloneAppServices.h"
#include "CKvStandaloneSettings.h"
#include "CKvSystemServices.h"

#include <QStringList>

/// The services of a program without windows. While it lives, GetKvSystemServices gives it.
class CKvStandaloneServices : public CKvSystemServices
{
public:
    explicit CKvStandaloneServices(CKvFileImage::Holding holding = CKvFileImage::Holding::Mapped);
    ~CKvStandaloneServices() override;
    CKvStandaloneServices(const CKvStandaloneServices &) = delete;
    CKvStandaloneServices &operator=(const CKvStandaloneServices &) = delete;

    /// The folder of the drawing comes first, then the search paths in their order, then the
    /// folders of the support files.
    CKvString findFile(const CKvString &name, int hint, OdDbDatabase *database, int flags) override;
    /// Null: without windows there is none.
    CKvApplicationFrame *applicationFrame() override { return nullptr; }
    /// Null: without windows there are no documents.
    CKvDocumentManager *documentManager() override { return nullptr; }
    CKvStandaloneAppServices *hostAppServices() override { return &m_appServices; }
    /// Runs nothing: without a command line there is nothing that a request could name.
    OdResBufPtr evaluateExpression(CKvExpressionParserData &data, OdResBufPtr request) override;
    /// As evaluateExpression.
    void postCommand(OdResBufPtr /*request*/) override { }
    CKvStandaloneSettings *standardsSettings() override { return &m_settings; }

    /// @param folders relative ones count from the working directory of the search.
    void setSearchPaths(const QStringList &folders) { m_searchPaths = folders; }

private:
    CKvStandaloneAppServices m_appServices;
    CKvStandaloneSettings m_settings;
    QStringList m_searchPaths;
    CKvSystemServices *m_before;
};
