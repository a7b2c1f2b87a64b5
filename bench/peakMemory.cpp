// SPDX-License-Identifier: MIT
// peakMemory PROGRAM [ARGUMENT...] runs the program and prints its peak memory in KiB. A program of
// its own, since a process is also charged with the memory that its starter had when it started
// it, and this one has next to none.
#include <cstdio>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char **argv)
{
    if (argc < 2) {
        return 2;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    if (posix_spawn(&child, argv[1], &actions, nullptr, argv + 1, environ) != 0) {
        return 1;
    }
    rusage usage {};
    if (wait4(child, nullptr, 0, &usage) != child) {
        return 1;
    }
    std::printf("%ld\n", usage.ru_maxrss);
    return 0;
}
