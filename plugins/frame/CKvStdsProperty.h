// SPDX-License-Identifier: MIT
#pragma once

#include "CKvString.h"
#include "OdCmColor.h"
#include "OdResBuf.h"

#include <cstdint>
#include <vector>

/// One named value of a violation or a fix. Each maker gives a buffer with the type code that
/// stands for its kind of value, and throws OdError 255 when the class of the buffers is not
/// registered.
struct CKvStdsProperty {
    static CKvStdsProperty text(const CKvString &name, const CKvString &value);
    static CKvStdsProperty color(const CKvString &name, const OdCmColor &value);
    static CKvStdsProperty integer(const CKvString &name, std::int32_t value);
    static CKvStdsProperty real(const CKvString &name, double value);
    static CKvStdsProperty flag(const CKvString &name, bool value);

    /// The text of a buffer; empty for none.
    static CKvString toText(const OdResBufPtr &value);
    /// The colour of a buffer; by layer for none.
    static OdCmColor toColor(const OdResBufPtr &value);
    /// The number of a buffer; 0 for none.
    static std::int32_t toInteger(const OdResBufPtr &value);
    static double toReal(const OdResBufPtr &value);
    /// The flag of a buffer; false for none.
    static bool toFlag(const OdResBufPtr &value);

    /// Translated; also the key in the violation and the fix.
    CKvString name;
    OdResBufPtr value;
};

/// In the order in which the plug-in adds them.
using CKvStdsPropertyList = std::vector<CKvStdsProperty>;

/// Fills a violation or a fix; one that holds properties already stays as it is.
template <class Holder>
void addProperties(const OdSmartPtr<Holder> &holder, const CKvStdsPropertyList &properties)
{
    if (holder->propertyCount() != 0) {
        return;
    }
    for (const CKvStdsProperty &property : properties) {
        holder->addProperty(property.name, property.value);
    }
}
