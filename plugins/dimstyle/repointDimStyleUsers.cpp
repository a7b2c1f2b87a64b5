// SPDX-License-Identifier: MIT
#include "repointDimStyleUsers.h"

#include "walkDrawing.h"

#include "OdDbDatabase.h"
#include "OdDbDimension.h"
#include "OdDbLeader.h"

namespace
{

template <class User>
void repoint(const OdSmartPtr<User> &user, OdDbObjectId oldStyleId, OdDbObjectId newStyleId)
{
    if (user->dimensionStyle() == oldStyleId && user->isWriteEnabled()) {
        user->setDimensionStyle(newStyleId);
    }
}

} // namespace

void repointDimStyleUsers(CKvStdsErrorPtr error, OdDbObjectId newStyleId)
{
    const OdDbObjectId oldStyleId = error->objectId();
    walkOwnEntitiesNaming(*oldStyleId.database(), oldStyleId, [&](const OdDbEntityPtr &entity) {
        if (const OdDbDimensionPtr dimension = OdDbDimension::cast(entity.get())) {
            repoint(dimension, oldStyleId, newStyleId);
        } else if (const OdDbLeaderPtr leader = OdDbLeader::cast(entity.get())) {
            repoint(leader, oldStyleId, newStyleId);
        }
    });
}
