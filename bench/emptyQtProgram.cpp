// SPDX-License-Identifier: MIT
// What the start of the batch tool is measured against: a program that links Qt Core and does
// nothing.
#include <QString>

int main()
{
    return QString().isEmpty() ? 0 : 1;
}
