// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>

/// The commands that an expression runs, each with its answers. Understood are (command "NAME"
/// "answer" …), (setvar "NAME" value), which is the command SETVAR, and (progn …) around such.
/// @throws OdError for anything else.
QList<QStringList> lispCommands(const QString &expression);
