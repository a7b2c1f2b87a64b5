// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdDbDatabase.h"
#include "hostApi.h"

class CKvDatabase;
using CKvDatabasePtr = OdSmartPtr<CKvDatabase>;

/// The drawing of a document.
class KV_HOST_API CKvDatabase : public OdDbDatabase
{
public:
    explicit CKvDatabase(std::unique_ptr<CKvDrawingStore> store);
    ~CKvDatabase() override;

    static OdRxClass *desc();
    OdRxClass *isA() const override;

    /// Also knows the host's own variables, "STANDARDSVIOLATION" among them.
    OdResBufPtr getSysVar(const OdString &name) const override;
    /// Full path of the file that the document stands for; empty before the first save.
    CKvString drawingFileName() const;
};
