// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <vector>

/// Calls action with each reactor of a list that is still in it when its turn comes: what hears of
/// an event may take others off, and they may be gone then. One that is added meanwhile hears of
/// the next event.
template <class Reactor, class Action>
void tellReactors(const std::vector<Reactor *> &list, Action action)
{
    const std::vector<Reactor *> before(list.begin(), list.end());
    for (Reactor *reactor : before) {
        if (std::find(list.begin(), list.end(), reactor) != list.end()) {
            action(*reactor);
        }
    }
}
