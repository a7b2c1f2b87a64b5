// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbDatabase.h"

/// Share modes of readFile.
enum OdFileShare : int { kShareReadWrite = 64 };

/// What the application gives to the drawing library.
class KV_HOST_API OdDbHostAppServices
{
public:
    virtual ~OdDbHostAppServices() = default;

    /// The program's name, for the titles of message boxes.
    virtual OdString applicationTitle() const = 0;
    /// Opens a drawing.
    /// @param allowCodePageConversion false: texts are read by the code page that the file names.
    /// @param partialLoad true: what is not asked for need not be read.
    /// @param shareMode kShareReadWrite lets others read and write the file.
    /// @param password empty for none.
    /// @return null when there is no such file or it can't be read as a drawing.
    virtual OdDbDatabasePtr readFile(const OdString &path,
                                     bool allowCodePageConversion,
                                     bool partialLoad,
                                     int shareMode,
                                     const OdString &password) = 0;
};
