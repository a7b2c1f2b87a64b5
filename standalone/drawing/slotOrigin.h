// SPDX-License-Identifier: MIT
#pragma once

#include "CKvObjectSlot.h"
#include "CKvTextCodec.h"
#include "tagWriting.h"

class CKvDrawingStore;

/// The drawing that the handles of an object count in; null for a new object.
CKvDrawingStore *storeOf(const CKvObjectSlot &slot);
/// How the texts of an object are encoded.
const CKvTextCodec &codecOf(const CKvObjectSlot &slot);
/// How the tags of an object are written down.
CKvTagForm formOf(const CKvObjectSlot &slot);
