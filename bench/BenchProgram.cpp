// The whole program on the large model: processor time, and the most memory it had, mapping included.

#include "LargeStructure.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

extern char** environ;

namespace {

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
}

/// Runs the program with its output thrown away; false when it does not say "done" or "findings".
bool run(std::vector<std::string> arguments, rusage& use) {
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    int status = 0;
    const bool isRun = posix_spawn(&child, pointers[0], &actions, nullptr, pointers.data(), environ) == 0 &&
                       wait4(child, &status, 0, &use) == child;
    posix_spawn_file_actions_destroy(&actions);
    return isRun && WIFEXITED(status) && WEXITSTATUS(status) <= 1;
}

void program(benchmark::State& state, const std::vector<std::string>& words) {
    std::vector<std::string> arguments{VELKOR_BIN_DIR "/velkor"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    arguments.push_back(velkor::bench::LargeStructure::theOne().path());
    double peak = 0.0;
    for (auto _ : state) {
        rusage use{};
        if (!run(arguments, use)) return state.SkipWithError("the program failed");
        state.SetIterationTime(seconds(use.ru_utime) + seconds(use.ru_stime));
        peak = 1024.0 * static_cast<double>(use.ru_maxrss);
    }
    state.counters["peakMemory"] = peak;
}

} // namespace

#define VELKOR_PROGRAM(name, ...)                                                                                      \
    BENCHMARK_CAPTURE(program, name, std::vector<std::string>{__VA_ARGS__})                                            \
        ->UseManualTime()                                                                                              \
        ->Unit(benchmark::kMillisecond)

VELKOR_PROGRAM(units, "units");
VELKOR_PROGRAM(syntax, "check", "--syntax");
VELKOR_PROGRAM(schema, "check", "--schema");
VELKOR_PROGRAM(check, "check");
