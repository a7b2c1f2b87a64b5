// SPDX-License-Identifier: MIT
#include "helpTopics.h"

#include <utility>

namespace
{

std::function<void(int)> &viewer()
{
    static std::function<void(int)> s_viewer;
    return s_viewer;
}

} // namespace

void showHelpTopic(int topic)
{
    if (topic != 0 && viewer()) {
        viewer()(topic);
    }
}

void setHelpTopicViewer(std::function<void(int)> newViewer)
{
    viewer() = std::move(newViewer);
}
