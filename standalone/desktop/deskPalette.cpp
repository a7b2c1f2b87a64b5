// SPDX-License-Identifier: MIT
#include "deskPalette.h"

namespace
{

struct Colors {
    QRgb window;
    QRgb base;
    QRgb alternate;
    QRgb button;
    QRgb text;
    QRgb faint;
    QRgb highlight;
    QRgb link;
};

QPalette madePalette(const Colors &colors)
{
    QPalette palette;
    palette.setColor(QPalette::Window, colors.window);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.alternate);
    palette.setColor(QPalette::Button, colors.button);
    palette.setColor(QPalette::ToolTipBase, colors.alternate);
    for (const QPalette::ColorRole role :
         { QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText }) {
        palette.setColor(role, colors.text);
        palette.setColor(QPalette::Disabled, role, colors.faint);
    }
    palette.setColor(QPalette::PlaceholderText, colors.faint);
    palette.setColor(QPalette::Highlight, colors.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Base, colors.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.faint);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::LinkVisited, colors.link);
    return palette;
}

} // namespace

QPalette lightPalette()
{
    return madePalette({ 0xfff1f2f4,
                         0xffffffff,
                         0xfff7f8fa,
                         0xffe6e8eb,
                         0xff1c1f23,
                         0xff8a9099,
                         0xff1668c7,
                         0xff1257a6 });
}

QPalette darkPalette()
{
    return madePalette({ 0xff2b2f36,
                         0xff1d2127,
                         0xff252a31,
                         0xff383e47,
                         0xffe6e8eb,
                         0xff7d858f,
                         0xff2f7fd6,
                         0xff6cb0f5 });
}
