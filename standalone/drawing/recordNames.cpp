// SPDX-License-Identifier: MIT
#include "recordNames.h"

#include "CKvDrawingFormat.h"
#include "CKvObjectSlot.h"
#include "OdError.h"
#include "objectTags.h"

std::string_view encodedRecordName(const CKvObjectSlot &record)
{
    const std::optional<CKvTag> tag = findTag(record, 2);
    return tag ? tag->value : std::string_view();
}

QString recordName(const CKvObjectSlot &record)
{
    return record.format().codec.decode(encodedRecordName(record));
}

bool isSpaceName(const QString &name)
{
    return name.startsWith(QLatin1String("*Model_Space"), Qt::CaseInsensitive)
        || name.startsWith(QLatin1String("*Paper_Space"), Qt::CaseInsensitive);
}

void requireValidName(const QString &name)
{
    if (name.isEmpty()) {
        throw OdError(OdResult::kInvalidInput, "A name must not be empty.");
    }
    for (const QChar c : name) {
        if (QStringLiteral("<>/\\\":;?*|,=`").contains(c)) {
            throw OdError(OdResult::kInvalidInput,
                          "The name \"" + name.toStdString() + "\" has the character \""
                              + QString(c).toStdString() + "\", which names can't have.");
        }
    }
}
