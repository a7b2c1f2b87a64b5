// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdDbDatabase.h"

#include <functional>

/// Where a repair gets the database of a standards file from.
/// @return null when the file can't be read.
using CKvStandardsSource = std::function<OdDbDatabasePtr(const CKvString &path)>;
