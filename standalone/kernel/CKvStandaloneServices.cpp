// SPDX-License-Identifier: MIT
#include "CKvStandaloneServices.h"

#include "CKvExpressionParserData.h"
#include "findSupportFile.h"

CKvStandaloneServices::CKvStandaloneServices(CKvFileImage::Holding holding)
    : m_appServices(holding)
    , m_before(GetKvSystemServices())
{
    SetKvSystemServices(this);
}

CKvStandaloneServices::~CKvStandaloneServices()
{
    SetKvSystemServices(m_before);
}

CKvString CKvStandaloneServices::findFile(const CKvString &name,
                                          int /*hint*/,
                                          OdDbDatabase *database,
                                          int /*flags*/)
{
    return CKvString(findSupportFile(name.toQString(), database, m_searchPaths));
}

OdResBufPtr CKvStandaloneServices::evaluateExpression(CKvExpressionParserData &data,
                                                      OdResBufPtr /*request*/)
{
    data.setFailure(CKvString("There is no command line."));
    return {};
}
