// SPDX-License-Identifier: MIT
#pragma once

/// What kind of value stands behind a group code.
enum class CKvGroupValueType { Text, Handle, Bool, Int16, Int32, Int64, Real, Bytes };

/// By the ranges of the format's reference of group codes; what has no range of its own is text.
CKvGroupValueType groupValueType(int code);
