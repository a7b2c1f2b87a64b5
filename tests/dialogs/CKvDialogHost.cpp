// SPDX-License-Identifier: MIT
#include "CKvDialogHost.h"

#include "CKvExpressionParserData.h"

OdResBufPtr CKvDialogHost::evaluateExpression(CKvExpressionParserData &data, OdResBufPtr request)
{
    std::string text = data.failure().isEmpty() ? "" : "used before: ";
    for (OdResBufPtr buffer = request; buffer; buffer = buffer->next()) {
        text += (buffer == request ? "" : " ") + std::to_string(buffer->restype());
        if (buffer->restype() == OdResBuf::kRtString) {
            text += '=' + buffer->getString().toQString().toStdString();
        } else if (buffer->restype() == OdResBuf::kRtInt16) {
            text += '=' + std::to_string(buffer->getInt16());
        }
    }
    m_requests.push_back(text);
    data.setFailure(CKvString("used"));
    if (m_action) {
        m_action();
    }
    return {};
}
