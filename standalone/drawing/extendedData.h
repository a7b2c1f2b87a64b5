// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

class CKvObjectSlot;

/// Group codes with their values as an ASCII file has them.
using CKvExtendedGroups = std::vector<std::pair<int, std::string>>;

/// The groups that an application has in the extended data of an object, in their order, without
/// its name (1001). Names of applications are compared without regard to case; of two blocks of one
/// application the last one counts. Empty when there are none.
std::vector<CKvTag> extendedData(const CKvObjectSlot &slot, std::string_view application);

/// Gives an application these groups in place of those that it has, or takes its data out when
/// there are none. Groups of the same codes as before keep their spelling where their values are
/// the same. The application is entered in the APPID table when it is missing there.
void setExtendedData(CKvObjectSlot &slot,
                     std::string_view application,
                     const CKvExtendedGroups &groups);
