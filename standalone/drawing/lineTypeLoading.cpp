// SPDX-License-Identifier: MIT
#include "lineTypeLoading.h"

#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "extensionDictionary.h"

#include <cmath>

namespace
{

constexpr int kIsAbsolute = 1;
constexpr int kIsText = 2;

/// 12.7 and 6.35 add up to 19.049999999999997; nobody who reads the file wants to know that.
double withoutSumErrors(double length)
{
    constexpr double kDigits = 1e10;
    const double rounded = std::round(length * kDigits) / kDigits;
    return std::isfinite(rounded) ? rounded : length;
}

void appendElementStyle(std::string &tags,
                        CKvDrawingStore &store,
                        const CKvLineTypeDefinition::Element &element)
{
    using Kind = CKvLineTypeDefinition::Element::Kind;
    const CKvTagStyle plain;
    if (element.kind == Kind::Shape) {
        throw OdError(OdResult::kDefinitionUnreadable,
                      "The shape " + element.content.toStdString()
                          + " of the line style can't be read.");
    }
    CKvObjectSlot *style = store.table(CKvTableKind::TextStyle).find(element.style);
    if (!style) {
        throw OdError(OdResult::kDefinitionUnreadable,
                      "The line style needs the text style " + element.style.toStdString() + ".");
    }
    requireHandle(*style);
    appendTag(tags, plain, 75, "0");
    appendTag(tags, plain, 340, handleToText(style->handle));
    appendTag(tags, plain, 46, spelledReal(element.scale));
    appendTag(tags, plain, 50, spelledReal(element.rotationDegrees));
    appendTag(tags, plain, 44, spelledReal(element.offsetX));
    appendTag(tags, plain, 45, spelledReal(element.offsetY));
    appendTag(tags, plain, 9, CKvTextCodec().encode(element.content));
}

} // namespace

std::string lineTypeTags(CKvDrawingStore &store, const CKvLineTypeDefinition &definition)
{
    using Kind = CKvLineTypeDefinition::Element::Kind;
    const CKvTagStyle plain;
    double length = 0;
    for (const CKvLineTypeDefinition::Element &element : definition.elements) {
        length += std::abs(element.length);
    }
    std::string tags;
    appendTag(tags, plain, 0, "LTYPE");
    appendTag(tags, plain, 100, "AcDbSymbolTableRecord");
    appendTag(tags, plain, 100, "AcDbLinetypeTableRecord");
    appendTag(tags, plain, 2, CKvTextCodec().encode(definition.name));
    appendTag(tags, plain, 70, "0");
    appendTag(tags, plain, 3, CKvTextCodec().encode(definition.description));
    appendTag(tags, plain, 72, "65");
    appendTag(tags, plain, 73, std::to_string(definition.elements.size()));
    appendTag(tags, plain, 40, spelledReal(withoutSumErrors(length)));
    for (const CKvLineTypeDefinition::Element &element : definition.elements) {
        const int flags = (element.kind == Kind::Text ? kIsText : 0)
            | (element.kind != Kind::Plain && element.isRotationAbsolute ? kIsAbsolute : 0);
        appendTag(tags, plain, 49, spelledReal(element.length));
        if (store.format().hasDictionaries()) {
            appendTag(tags, plain, 74, std::to_string(flags));
        }
        if (element.kind != Kind::Plain) {
            appendElementStyle(tags, store, element);
        }
    }
    return tags;
}

OdDbLinetypeTableRecordPtr newLineType(CKvDrawingStore &store,
                                       const CKvLineTypeDefinition &definition)
{
    OdDbLinetypeTableRecordPtr record = OdDbLinetypeTableRecord::createObject();
    *CKvObjectAccess::slotOf(*record)->own = lineTypeTags(store, definition);
    return record;
}
