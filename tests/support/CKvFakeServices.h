// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingBuilder.h"
#include "CKvStandardsSettings.h"
#include "CKvSystemServices.h"
#include "OdDbHostAppServices.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <string>
#include <vector>

/// Services over drawings in memory that write down what was asked of them. While it lives,
/// GetKvSystemServices gives it.
///
///     CKvFakeServices services;
///     services.setDrawing("/office.dxf", standards);
///     services.setSupportFile("mm.lin", folder.filePath("mm.lin"));
class CKvFakeServices : public CKvSystemServices,
                        public OdDbHostAppServices,
                        public CKvStandardsSettings
{
public:
    CKvFakeServices();
    ~CKvFakeServices() override;
    CKvFakeServices(const CKvFakeServices &) = delete;
    CKvFakeServices &operator=(const CKvFakeServices &) = delete;

    /// readFile of this path gives the drawing, each time a new one.
    void setDrawing(const CKvDxfValue &path, const CKvDrawingBuilder &drawing);
    /// readFile of this path gives null.
    void removeDrawing(const CKvDxfValue &path);
    /// readFile of this path throws OdError of this code.
    void setFailure(const CKvDxfValue &path, int code);
    /// findFile of this name gives the path.
    void setSupportFile(const CKvDxfValue &name, const CKvDxfValue &path);
    /// What readFile gave last for the path; null when nothing.
    OdDbDatabasePtr lastRead(const CKvDxfValue &path) const;
    /// Every call with its arguments, in order: "readFile /office.dxf false true 64 ''",
    /// "findFile mm.lin 0 null 0".
    const std::vector<std::string> &calls() const { return m_calls; }
    void forgetCalls() { m_calls.clear(); }

    CKvString findFile(const CKvString &name, int hint, OdDbDatabase *database, int flags) override;
    CKvApplicationFrame *applicationFrame() override { return nullptr; }
    CKvDocumentManager *documentManager() override { return nullptr; }
    OdDbHostAppServices *hostAppServices() override { return this; }
    OdResBufPtr evaluateExpression(CKvExpressionParserData & /*data*/,
                                   OdResBufPtr /*request*/) override
    {
        return {};
    }
    void postCommand(OdResBufPtr /*request*/) override { }
    CKvStandardsSettings *standardsSettings() override { return this; }

    OdString applicationTitle() const override { return OdString("Test"); }
    OdDbDatabasePtr readFile(const OdString &path,
                             bool allowCodePageConversion,
                             bool partialLoad,
                             int shareMode,
                             const OdString &password) override;

    CKvString preferredStandardsFile() const override { return CKvString(); }
    bool fixAutomatically() const override { return false; }
    bool showIgnored() const override { return false; }

protected:
    void note(const std::string &call) { m_calls.push_back(call); }

private:
    CKvSystemServices *m_before;
    std::map<QString, QByteArray> m_drawings;
    std::map<QString, int> m_failures;
    std::map<QString, QString> m_supportFiles;
    std::map<QString, OdDbDatabasePtr> m_lastRead;
    std::vector<std::string> m_calls;
};
