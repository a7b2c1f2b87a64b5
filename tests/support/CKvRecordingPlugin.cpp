// SPDX-License-Identifier: MIT
#include "CKvRecordingPlugin.h"

#include "CKvStdsFix.h"

namespace
{

std::string joined(const std::vector<CKvString> &texts)
{
    std::string line;
    for (const CKvString &text : texts) {
        line += (line.empty() ? "" : ",") + text.toQString().toStdString();
    }
    return "[" + line + "]";
}

} // namespace

CKvRecordingPlugin::CKvRecordingPlugin(const char *name, std::vector<std::string> &calls)
    : m_name(name)
    , m_calls(calls)
{
}

void CKvRecordingPlugin::finds(OdDbObjectId object, int candidates, int recommended)
{
    m_findings.push_back({ object, candidates, recommended });
}

void CKvRecordingPlugin::note(const std::string &call) const
{
    m_calls.push_back(m_name + "." + call);
    if (call.substr(0, call.find(' ')) == m_failure) {
        throw OdError(OdResult::kUnspecified, call);
    }
}

void CKvRecordingPlugin::setManager(CKvStdsManager * /*manager*/)
{
    note("setManager");
}

void CKvRecordingPlugin::setObjectsToCheck(OdDbObjectIdArray ids, bool scanAll)
{
    note("setObjectsToCheck " + std::to_string(ids.size()) + (scanAll ? " all" : ""));
}

void CKvRecordingPlugin::openStandards(OdDbDatabasePtr drawing,
                                       CKvString drawingName,
                                       std::vector<CKvString> standardsNames,
                                       std::vector<CKvString> standardsPaths)
{
    note("openStandards " + std::string(drawing ? "drawing " : "null ")
         + drawingName.toQString().toStdString() + " " + joined(standardsNames) + " "
         + joined(standardsPaths));
}

std::vector<CKvString> CKvRecordingPlugin::objectFilter()
{
    note("objectFilter");
    std::vector<CKvString> types;
    for (const QString &type : m_types) {
        types.emplace_back(type);
    }
    return types;
}

void CKvRecordingPlugin::beginScan(CKvStdsErrorPtr start)
{
    m_at = 0;
    note(start ? "beginScan error" : "beginScan");
}

void CKvRecordingPlugin::nextError()
{
    ++m_at;
    note("nextError");
}

void CKvRecordingPlugin::clear()
{
    note("clear");
}

bool CKvRecordingPlugin::acceptValue(CKvString /*value*/)
{
    return true;
}

void CKvRecordingPlugin::applyFix(CKvStdsErrorPtr /*error*/,
                                  CKvStdsFixPtr /*fix*/,
                                  CKvString & /*message*/)
{
    note("applyFix");
}

void CKvRecordingPlugin::collectFixes(CKvStdsErrorPtr error,
                                      OdArray<CKvStdsFixPtr> &fixes,
                                      std::int32_t &recommended)
{
    note("collectFixes " + error->objectName().toQString().toStdString()
         + (fixes.isEmpty() && recommended == -1 ? "" : " not fresh"));
    for (int i = 0; i < m_findings[m_at].candidates; ++i) {
        const CKvStdsFixPtr fix = CKvStdsFix::createObject();
        fix->setName(CKvString(QStringLiteral("candidate%1").arg(i)));
        fixes.append(fix);
    }
    recommended = m_findings[m_at].recommended;
}

CKvStdsErrorPtr CKvRecordingPlugin::currentError() const
{
    note("currentError");
    if (m_findings[m_at].object.isNull()) {
        return CKvStdsErrorPtr();
    }
    CKvStdsErrorPtr error = CKvStdsError::createObject();
    error->setObjectId(m_findings[m_at].object);
    error->setObjectName(CKvString(QString::fromStdString(m_name + std::to_string(m_at))));
    return error;
}

void CKvRecordingPlugin::propertyDifferences(CKvStdsErrorPtr /*error*/,
                                             CKvStdsFixPtr /*fix*/,
                                             std::vector<CKvString> & /*names*/,
                                             OdArray<OdResBufPtr> & /*objectValues*/,
                                             OdArray<OdResBufPtr> & /*fixValues*/,
                                             std::vector<CKvString> & /*units*/)
{
    note("propertyDifferences");
}

CKvStdsFixPtr CKvRecordingPlugin::recommendedFix(CKvStdsErrorPtr /*error*/)
{
    return CKvStdsFixPtr();
}

void CKvRecordingPlugin::releaseError(CKvStdsErrorPtr &error)
{
    error.release();
}
