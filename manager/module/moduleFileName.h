// SPDX-License-Identifier: MIT
#pragma once

#include "OdRxModule.h"
#include "OdString.h"

/// Full path of the file that the handle stands for, cut after 259 characters; empty when the
/// system does not tell.
OdString moduleFileName(OdRxModuleHandle handle);
