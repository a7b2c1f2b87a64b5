// SPDX-License-Identifier: MIT
#include "list.h"

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList all;
    for (const char *text : texts) {
        all << QString::fromUtf8(text);
    }
    return all;
}
