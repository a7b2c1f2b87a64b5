// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

#include <QString>

#include <vector>

class OdRxClass;

/// One category of checks, as the command line and the reports know it.
struct CKvCategory {
    /// As --only takes it: "layers".
    const char *word;
    /// One of its objects, as users say it: "layer".
    const char *noun;
    /// The plug-in's class.
    OdRxClass *(*desc)();
    void (*rxInit)();
    void (*rxUninit)();
    OdDbObjectId (OdDbDatabase::*tableId)() const;
};

/// All categories in the order in which they are checked and reported.
const std::vector<const CKvCategory *> &allCategories();
/// The words of all categories.
QStringList categoryWords();
/// The categories of these words, in the order of the checks; all when there is no word.
/// @throws CKvUsageError for a word that names none.
std::vector<const CKvCategory *> categoriesOf(const QStringList &words);
/// @throws CKvUsageError as categoriesOf.
const CKvCategory &categoryOf(const QString &word);
