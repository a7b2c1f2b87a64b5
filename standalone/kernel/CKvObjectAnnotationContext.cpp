// SPDX-License-Identifier: MIT
#include "CKvObjectAnnotationContext.h"

#include "OdDbObject.h"
#include "annotation.h"

bool CKvObjectAnnotationContext::IsAnnotative(OdDbObjectId id, bool *matchesOrientation)
{
    const OdDbObjectPtr style = id.openObject(OdDb::kForRead);
    if (!style || !canBeAnnotative(*style) || !isAnnotative(*style)) {
        return false;
    }
    if (matchesOrientation) {
        *matchesOrientation = ::matchesOrientation(*style);
    }
    return true;
}

bool CKvObjectAnnotationContext::SetAnnotative(OdDbObjectId id,
                                               bool isAnnotative,
                                               bool matchesOrientation)
{
    const OdDbObjectPtr style = id.openObject(OdDb::kForRead);
    if (!style || !canBeAnnotative(*style)) {
        return false;
    }
    if (::isAnnotative(*style) != isAnnotative
        || ::matchesOrientation(*style) != matchesOrientation) {
        style->upgradeOpen();
        setAnnotative(*style, isAnnotative);
        setMatchesOrientation(*style, matchesOrientation);
    }
    return true;
}
