// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>
#include <QWidget>

#include <string>
#include <vector>

/// One property of one widget of a form, as text.
struct FormFact {
    const char *object;
    const char *property;
    const char *value;
};

/// The layouts of a window with what they hold, one a line, indented by depth:
/// "QVBoxLayout verticalLayout", "  QLabel label", "  spacer 40x20 Expanding x Minimum".
std::string layoutTree(const QWidget &window);

/// A property as a form's author would write it: "385x499", "Preferred x Fixed", "Close|Help",
/// "true". "class" is one more of them.
std::string propertyText(const QObject &object, const char *property);

/// Compares each fact with the window, and adds a failure for each that differs. A widget is found
/// by its name, a header as "Table/horizontalHeader" or "Table/verticalHeader"; "" is the window.
void expectFacts(const QWidget &window, const std::vector<FormFact> &facts);
