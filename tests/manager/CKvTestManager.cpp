// SPDX-License-Identifier: MIT
#include "CKvTestManager.h"

bool CKvTestManager::notifyViolation()
{
    shown.emplace_back("notify");
    return wantsVerification;
}

void CKvTestManager::showVerificationDialog(const OdArray<CKvStdsViolation> &violations)
{
    std::string text = "show";
    for (const CKvStdsViolation &violation : violations) {
        text += ' ' + violation.error->objectName().toQString().toStdString();
    }
    shown.push_back(text);
}
