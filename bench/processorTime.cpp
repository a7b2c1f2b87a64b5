// SPDX-License-Identifier: MIT
#include "processorTime.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

double toSeconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
}

} // namespace

double processorSeconds()
{
    timespec now {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

double processSeconds(const std::string &program, std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), program);
    std::vector<char *> words;
    words.reserve(arguments.size() + 1);
    for (std::string &argument : arguments) {
        words.push_back(argument.data());
    }
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    rusage usage {};
    if (posix_spawn(&child, program.c_str(), &actions, nullptr, words.data(), environ) == 0) {
        wait4(child, nullptr, 0, &usage);
    }
    posix_spawn_file_actions_destroy(&actions);
    return toSeconds(usage.ru_utime) + toSeconds(usage.ru_stime);
}

double peakMemoryOfProgram(const std::string &arguments)
{
    const std::string command = KV_PEAK_MEMORY " " KV_PROGRAM " " + arguments;
    FILE *const output = popen(command.c_str(), "r");
    if (output == nullptr) {
        return 0;
    }
    char line[32] = "";
    const bool hasLine = std::fgets(line, sizeof line, output) != nullptr;
    pclose(output);
    return hasLine ? double(std::strtol(line, nullptr, 10)) / 1024 : 0;
}
