// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Runs what a click or a key sets off. What it throws is thrown anew in the event loop, where the
/// application shows it: Qt's widgets are built without exceptions and can't be passed by one.
void runFromWidget(const std::function<void()> &action);
