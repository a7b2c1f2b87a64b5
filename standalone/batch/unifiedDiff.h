// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

/// The change of a file as a unified diff with three lines of context, in the file's own encoding,
/// as "patch" takes it. Empty when nothing changed; a single sentence for binary files.
/// @param name of the file, for the head.
QByteArray unifiedDiff(std::string_view before, std::string_view after, const QString &name);
