// SPDX-License-Identifier: MIT
#include "textStyleRecords.h"

#include "CKvTextStyleTexts.h"
#include "sameReal.h"

#include "CKvObjectAnnotationContext.h"
#include "giFromDbTextStyle.h"

namespace
{

CKvString fontStyleOf(const OdDbTextStyleTableRecordPtr &style)
{
    OdGiTextStyle drawn;
    giFromDbTextStyle(style->objectId(), drawn);
    if ((drawn.flags() & OdGiTextStyle::kShxFont) != 0) {
        return CKvString();
    }
    OdString typeface;
    bool isBold = false;
    bool isItalic = false;
    int charset = 0;
    int pitchAndFamily = 0;
    style->font(typeface, isBold, isItalic, charset, pitchAndFamily);
    if (isBold) {
        return CKvString(isItalic ? "Bold Italic" : "Bold");
    }
    return CKvString(isItalic ? "Italic" : "Normal");
}

} // namespace

std::unique_ptr<CKvStdsTextStyleRecord> readTextStyle(const OdDbTextStyleTableRecordPtr &style)
{
    auto record = std::make_unique<CKvStdsTextStyleRecord>();
    record->name = CKvString(style->getName());
    record->fontFile = CKvString(style->fileName());
    record->bigFontFile = CKvString(style->bigFontFileName());
    record->textSize = style->textSize();
    record->isUpsideDown = style->isUpsideDown();
    record->isVertical = style->isVertical();
    record->isBackwards = style->isBackwards();
    record->xScale = style->xScale();
    record->obliquingAngle = style->obliquingAngle();
    record->fontStyle = fontStyleOf(style);
    record->annotative =
        CKvObjectAnnotationContext::IsAnnotative(style->objectId(), &record->matchOrientation);
    return record;
}

std::unique_ptr<CKvStdsTextStyleRecord>
readTextStyleRecord(bool fromFix, const CKvStdsFixPtr &fix, const CKvStdsErrorPtr &error)
{
    const auto value = [&](const CKvString &name) {
        return fromFix ? fix->property(name) : error->property(name);
    };
    using Texts = CKvTextStyleTexts;
    auto record = std::make_unique<CKvStdsTextStyleRecord>();
    record->name = CKvStdsProperty::toText(value(Texts::nameProperty()));
    record->fontFile = CKvStdsProperty::toText(value(Texts::fontProperty()));
    record->bigFontFile = CKvStdsProperty::toText(value(Texts::bigFontProperty()));
    record->textSize = CKvStdsProperty::toReal(value(Texts::textHeightProperty()));
    record->isUpsideDown = CKvStdsProperty::toFlag(value(Texts::upsideDownProperty()));
    record->isVertical = CKvStdsProperty::toFlag(value(Texts::verticalProperty()));
    record->isBackwards = CKvStdsProperty::toFlag(value(Texts::backwardsProperty()));
    record->xScale = CKvStdsProperty::toReal(value(Texts::widthProperty()));
    record->obliquingAngle = CKvStdsProperty::toReal(value(Texts::obliqueAngleProperty()));
    record->fontStyle = CKvStdsProperty::toText(value(Texts::fontStyleProperty()));
    record->annotative = CKvStdsProperty::toFlag(value(Texts::annotativeProperty()));
    record->matchOrientation = CKvStdsProperty::toFlag(value(Texts::matchOrientationProperty()));
    return record;
}

CKvStdsPropertyList textStyleProperties(const CKvStdsTextStyleRecord &record)
{
    using Texts = CKvTextStyleTexts;
    return {
        CKvStdsProperty::text(Texts::nameProperty(), record.name),
        CKvStdsProperty::text(Texts::fontProperty(), record.fontFile),
        CKvStdsProperty::text(Texts::bigFontProperty(), record.bigFontFile),
        CKvStdsProperty::real(Texts::textHeightProperty(), record.textSize),
        CKvStdsProperty::flag(Texts::upsideDownProperty(), record.isUpsideDown),
        CKvStdsProperty::flag(Texts::verticalProperty(), record.isVertical),
        CKvStdsProperty::flag(Texts::backwardsProperty(), record.isBackwards),
        CKvStdsProperty::real(Texts::widthProperty(), record.xScale),
        CKvStdsProperty::real(Texts::obliqueAngleProperty(), record.obliquingAngle),
        CKvStdsProperty::text(Texts::fontStyleProperty(), record.fontStyle),
        CKvStdsProperty::flag(Texts::annotativeProperty(), record.annotative),
        CKvStdsProperty::flag(Texts::matchOrientationProperty(), record.matchOrientation),
    };
}

void writeTextStyleProperties(bool toFix,
                              const CKvStdsFixPtr &fix,
                              const CKvStdsErrorPtr &error,
                              const CKvStdsTextStyleRecord &record)
{
    if (toFix) {
        addProperties(fix, textStyleProperties(record));
    } else {
        addProperties(error, textStyleProperties(record));
    }
}

bool sameTextStyleRecord(const CKvStdsTextStyleRecord &first, const CKvStdsTextStyleRecord &second)
{
    return first.name.compareNoCase(second.name) == 0
        && first.fontFile.compareNoCase(second.fontFile) == 0
        && first.bigFontFile.compareNoCase(second.bigFontFile) == 0
        && sameReal(first.textSize, second.textSize) && first.isUpsideDown == second.isUpsideDown
        && first.isVertical == second.isVertical && first.isBackwards == second.isBackwards
        && sameReal(first.xScale, second.xScale)
        && sameReal(first.obliquingAngle, second.obliquingAngle)
        && first.fontStyle.compareNoCase(second.fontStyle) == 0
        && first.annotative == second.annotative
        && first.matchOrientation == second.matchOrientation;
}

bool matchesTextStyleRecord(const OdDbTextStyleTableRecordPtr &style,
                            const CKvStdsTextStyleRecord &record)
{
    return sameTextStyleRecord(*readTextStyle(style), record);
}

bool sameResBuf(const OdResBufPtr &first, const OdResBufPtr &second)
{
    if (first->restype() != second->restype()) {
        return false;
    }
    switch (first->restype()) {
    case OdResBuf::kDxfBool:
        return first->getBool() == second->getBool();
    case OdResBuf::kRtDouble:
        return sameReal(first->getDouble(), second->getDouble());
    case OdResBuf::kRtString:
        return first->getString().iCompare(second->getString()) == 0;
    default:
        return false;
    }
}
