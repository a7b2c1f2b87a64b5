// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchSession.h"

#include <QString>

#include <utility>
#include <vector>

/// A layer or style of a drawing as it is listed: values in the words of the checks.
struct CKvRecordListing {
    QString name;
    QString handle;
    /// Names and values, sorted by name, without the record's own name.
    std::vector<std::pair<QString, QString>> properties;
    /// A layer that users don't see.
    bool isHidden = false;
    /// A text style that is the shape file of a line style.
    bool isShapeFile = false;
    /// Of an external reference.
    bool isDependent = false;
    bool isIgnored = false;
    QString ignoredBy;
};

/// All records of a category in the order of their table.
/// @throws OdError for a damaged stamp.
std::vector<CKvRecordListing> listRecords(const OdDbDatabase &drawing,
                                          const CKvBatchSession::Check &check);
