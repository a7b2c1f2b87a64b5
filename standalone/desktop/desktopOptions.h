// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDesktop.h"

#include <QStringList>

/// What the command line of kvdesk asks for. Tells about wrong usage, about --help and --version,
/// and ends the program then.
/// @param arguments with the program's name in front.
CKvDesktopOptions desktopOptions(const QStringList &arguments);
