// SPDX-License-Identifier: MIT
#pragma once

class QTimer;

/// The timer of the manager of a module that is loaded; null when there is none.
QTimer *managerTimer();
/// Handles events until the manager's timer has ticked this often. Fails the test when it does not
/// run.
void letTick(int times);
