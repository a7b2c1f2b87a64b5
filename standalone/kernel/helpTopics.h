// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Shows the help topic of that number; does nothing for 0, and as long as nobody can show one.
void showHelpTopic(int topic);
/// @param viewer shows a topic by its number; an empty one takes the viewer away.
void setHelpTopicViewer(std::function<void(int)> viewer);
