// SPDX-License-Identifier: MIT
#include "OdString.h"

const OdString OdString::kEmpty;
