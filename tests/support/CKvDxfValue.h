// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A group's value as it stands in the file. Made without a word from what tests write: literals
/// are UTF-8, a real always shows its decimal point.
struct CKvDxfValue {
    CKvDxfValue(const char *utf8);
    CKvDxfValue(const QString &value);
    CKvDxfValue(int value);
    CKvDxfValue(double value);

    QString text;
};
