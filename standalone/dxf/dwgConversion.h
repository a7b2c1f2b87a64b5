// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>

/// @return true for bytes that begin as a DWG file does.
bool isDwg(std::string_view bytes);
/// @return true for a file that begins so; false also when it can't be read.
bool isDwgFile(const QString &path);

/// Lets the program dwg2dxf read a DWG file.
/// @return the drawing as DXF; nothing when there is no such program on the path.
/// @throws CKvDxfError when the program fails.
std::optional<QByteArray> convertedDwg(const QString &path);
