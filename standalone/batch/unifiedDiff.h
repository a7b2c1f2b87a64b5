// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// The change of a file as a unified diff with three lines of context, in the file's own encoding,
/// as "patch" takes it. Empty when nothing changed; a single sentence for binary files.
/// @param name of the file, for the head.
QByteArray unifiedDiff(const QByteArray &before, const QByteArray &after, const QString &name);
