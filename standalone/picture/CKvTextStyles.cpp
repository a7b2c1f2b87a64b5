// SPDX-License-Identifier: MIT
#include "CKvTextStyles.h"

#include "CKvDrawingStore.h"
#include "CKvEntityTags.h"
#include "CKvPicture.h"
#include "CKvTagReader.h"

#include <QFileInfo>

#include <initializer_list>

namespace
{

constexpr std::int64_t kBold = 0x02000000;
constexpr std::int64_t kItalic = 0x01000000;

struct Typeface {
    QString family;
    std::int64_t flags = 0;
};

/// Extended data of the application ACAD: typeface and its flags.
Typeface typefaceOf(const CKvObjectSlot &record)
{
    Typeface face;
    CKvTagReader reader(record.bytes(), record.form());
    bool isInside = false;
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        if (tag.code == 1001) {
            isInside = QString::fromLatin1(tag.word().data(), int(tag.word().size()))
                           .compare(QLatin1String("ACAD"), Qt::CaseInsensitive)
                == 0;
        } else if (isInside && tag.code == 1000) {
            face.family = record.format().codec.decode(tag.value);
        } else if (isInside && tag.code == 1071) {
            face.flags = tag.integer();
        }
    }
    return face;
}

/// A guess from the file's name, "arial.ttf" for instance; empty for fonts of strokes.
QString familyOfFile(const QString &file)
{
    const QString ending = QFileInfo(file).suffix();
    for (const char *known : { "ttf", "ttc", "otf" }) {
        if (ending.compare(QLatin1String(known), Qt::CaseInsensitive) == 0) {
            return QFileInfo(file).completeBaseName();
        }
    }
    return {};
}

} // namespace

const CKvTextStyles::Style &CKvTextStyles::find(std::string_view encodedName)
{
    const auto [place, isNew] = m_styles.try_emplace(std::string(encodedName));
    if (isNew) {
        place->second = read(m_store.table(CKvTableKind::TextStyle).findEncoded(encodedName));
    }
    return place->second;
}

CKvTextStyles::Style CKvTextStyles::read(CKvObjectSlot *record)
{
    if (!record) {
        return { m_picture.fontIndex(CKvTextFont(QString(), false, false)), 1 };
    }
    const CKvEntityTags tags(*record);
    Typeface face = typefaceOf(*record);
    if (face.family.isEmpty()) {
        face.family = familyOfFile(tags.text(3));
    }
    const CKvTextFont font(face.family, (face.flags & kBold) != 0, (face.flags & kItalic) != 0);
    const double factor = tags.real(41, 1);
    return { m_picture.fontIndex(font), factor > 0 ? factor : 1 };
}
