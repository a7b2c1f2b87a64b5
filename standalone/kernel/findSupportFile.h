// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class OdDbDatabase;

/// Searches a file by its bare name: in the folder of the drawing, in the search paths in their
/// order, in the folders of the support files.
/// @param database null for none.
/// @param searchPaths relative ones count from the working directory.
/// @return its full path, empty when there is none.
QString
findSupportFile(const QString &name, const OdDbDatabase *database, const QStringList &searchPaths);
