// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTextStyles.h"

#include <QStringList>
#include <QTransform>

class CKvShapeSink;

/// @param text of a TEXT: %%d, %%c, %%p and %%nnn become their characters, %%u and %%o go.
QString plainText(const QString &text);
/// @param text of an MTEXT, with its codes for fonts, heights and colours, which go.
/// @return its lines as the writer broke them.
QStringList plainLines(const QString &text);

/// Where the lines of a text stand.
struct CKvTextBlock {
    /// Of capital letters.
    double height = 0;
    double widthFactor = 1;
    /// From the text's own axes, with its place at the origin, to the plane of the drawing.
    QTransform placement;
    /// What of the text lies at its place: 0 left or top, 1 middle, 2 right or bottom.
    int horizontal = 0;
    int vertical = 0;
    /// Lines are broken where they would be longer; 0 for no limit.
    double limit = 0;
    double lineSpacing = 1;
};

/// Draws lines of text one below the other.
void drawTextBlock(const CKvTextBlock &block,
                   const QStringList &lines,
                   const CKvTextStyles::Style &style,
                   CKvShapeSink &sink);
