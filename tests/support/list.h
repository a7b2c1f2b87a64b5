// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <initializer_list>

/// list({ "first", "second" }): texts in UTF-8.
QStringList list(std::initializer_list<const char *> texts);
