// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Full path of the running program, without the need of an application object; empty when the
/// system does not tell.
QString executablePath();
/// The folder that holds the running program; empty when the system does not tell.
QString executableFolder();
