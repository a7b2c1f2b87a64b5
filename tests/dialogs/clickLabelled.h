// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QTest>

/// Clicks the mark of a check box or a radio button; right of its text it hears no clicks.
inline void clickLabelled(QAbstractButton &button)
{
    const int middle = button.height() / 2;
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(middle, middle));
}
