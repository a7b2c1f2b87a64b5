// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

#include <QString>

#include <vector>

/// A layer of a drawing as it is listed: values in the words of the checks.
struct CKvLayerListing {
    QString name;
    QString handle;
    QString color;
    QString lineStyle;
    /// The number where the lineweight has no name.
    QString lineWeight;
    bool isHidden = false;
    /// Of an external reference.
    bool isDependent = false;
    bool isIgnored = false;
    QString ignoredBy;
};

/// All layers in the order of the table. The classes of the contract must be registered.
/// @throws OdError for a damaged stamp.
std::vector<CKvLayerListing> listLayers(const OdDbDatabase &drawing);
