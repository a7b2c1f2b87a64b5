// SPDX-License-Identifier: MIT
#include "hostVariables.h"

#include "CKvSession.h"
#include "OdError.h"

namespace
{

// What a host without settings has: tell of each violation.
constexpr std::int16_t kViolationDefault = 2;

bool isViolationVariable(const QString &name)
{
    return name.compare(QLatin1String("STANDARDSVIOLATION"), Qt::CaseInsensitive) == 0;
}

} // namespace

OdResBufPtr hostVariable(const QString &name)
{
    if (!isViolationVariable(name)) {
        return OdResBufPtr();
    }
    CKvSession *session = CKvSession::current();
    OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtInt16);
    value->setInt16(session ? session->settings().standardsViolation() : kViolationDefault);
    return value;
}

bool setHostVariable(const QString &name, const QString &value)
{
    if (!isViolationVariable(name)) {
        return false;
    }
    bool isNumber = false;
    const int number = value.trimmed().toInt(&isNumber);
    if (!isNumber || number < 0 || number > 2) {
        throw OdError_InvalidSysvarValue("STANDARDSVIOLATION");
    }
    if (CKvSession *session = CKvSession::current()) {
        session->settings().setStandardsViolation(std::int16_t(number));
    }
    return true;
}
