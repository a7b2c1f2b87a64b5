// SPDX-License-Identifier: MIT
#include "requestStandardsSettings.h"

#include "CKvExpressionParserData.h"
#include "CKvSystemServices.h"
#include "OdResBuf.h"

namespace
{

constexpr char kSettingsCommand[] = "_DWGSTANDARDS";

OdResBufPtr settingsRequest(StandardsSettingsPage page)
{
    OdResBufPtr command = OdResBuf::newRb(OdResBuf::kRtString);
    command->setString(OdString(kSettingsCommand));
    const OdResBufPtr number = OdResBuf::newRb(OdResBuf::kRtInt16);
    number->setInt16(std::int16_t(page));
    command->setNext(number);
    number->setNext(OdResBuf::newRb(OdResBuf::kRtEnd));
    return command;
}

} // namespace

void requestStandardsSettings(StandardsSettingsPage page)
{
    CKvExpressionParserData data;
    GetKvSystemServices()->evaluateExpression(data, settingsRequest(page));
}
