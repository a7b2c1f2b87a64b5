// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Processor time of this process so far, in seconds. Unlike the clock on the wall it says the same
/// on a busy machine.
double processorSeconds();

template <class Action> double secondsOf(Action action)
{
    const double begin = processorSeconds();
    action();
    return processorSeconds() - begin;
}

/// Runs a program to its end, its output thrown away.
/// @return its processor time in seconds.
double processSeconds(const std::string &program, std::vector<std::string> arguments);

/// Peak memory in MiB of the batch tool run with these arguments; 0 when it can't be had.
double peakMemoryOfProgram(const std::string &arguments);
