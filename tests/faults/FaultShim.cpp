// Preloaded into the program, it makes chosen allocations, reads and writes fail and runs the program many times from
// one start: where main() would begin, a server takes orders and forks a child for each.
//
//     VELKOR_FAULTS=ORDERS:ANSWERS   two descriptors, of a pipe to read orders from and of one to answer to
//     order    ALLOCATION WHICH READ WRITE MODE SECONDS
//              which allocation, which read and which write fails, counted from 1, 0 for none; WHICH is "once" or "on",
//              that allocation alone or it and all behind it. To write is whatever brings a file about: to begin it, to
//              put bytes there, to flush, to name and to rename it; messages to standard error do not count. MODE is
//              "once", "again", which does without the program's new-handler, as other hosts do, and runs main() a
//              second time undisturbed, or "cut", which makes each file that is mapped shorter behind the program's
//              back
//     answer   WAITSTATUS ALLOCATIONS READS WRITES
//
// Without orders, VELKOR_FAULTS_AT=N fails the N-th allocation of the process, load time included, and all behind.

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <initializer_list>
#include <iostream>
#include <new>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}

namespace {

using Main = int (*)(int, char**, char**);

struct Counters {
    unsigned long allocations;
    unsigned long reads;
    unsigned long writes;
};

constinit Counters ownCounters{};
constinit Counters* counters = &ownCounters;
constinit unsigned long failingAllocation = 0;
constinit bool failsOn = false;
constinit unsigned long failingRead = 0;
constinit unsigned long failingWrite = 0;
constinit bool cutsMapped = false;
constinit Main programMain = nullptr;

// The order that comes by the environment is there before any constructor has run.
void readEnvironment() {
    static constinit bool isRead = false;
    if (isRead || environ == nullptr) return;
    isRead = true;
    if (const char* number = std::getenv("VELKOR_FAULTS_AT"); number != nullptr) {
        failingAllocation = std::strtoul(number, nullptr, 10);
        failsOn = true;
    }
}

bool allocationFails() {
    readEnvironment();
    const unsigned long number = ++counters->allocations;
    if (failingAllocation == 0 || number < failingAllocation || (number > failingAllocation && !failsOn)) return false;
    errno = ENOMEM;
    return true;
}

bool readFails() {
    if (++counters->reads != failingRead) return false;
    errno = EIO;
    return true;
}

bool writeFails(int reason) {
    if (++counters->writes != failingWrite) return false;
    errno = reason;
    return true;
}

template <class Function>
Function real(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

struct Order {
    unsigned long allocation, read, write, seconds;
    char which[8], mode[8];
};

[[noreturn]] void runChild(const Order& order, int argc, char** argv, char** environment) {
    // A program without bounds takes time or memory; both end it by a signal or a failed allocation.
    const rlimit noDump{};
    setrlimit(RLIMIT_CORE, &noDump);
    const rlimit space{2UL << 30U, 2UL << 30U};
    setrlimit(RLIMIT_AS, &space);
    const itimerval time{{}, {static_cast<time_t>(order.seconds), 0}};
    setitimer(ITIMER_REAL, &time, nullptr);
    lseek(STDIN_FILENO, 0, SEEK_SET);
    *counters = {};
    failsOn = std::strcmp(order.which, "on") == 0;
    failingRead = order.read;
    failingWrite = order.write;
    cutsMapped = std::strcmp(order.mode, "cut") == 0;
    const bool runsAgain = std::strcmp(order.mode, "again") == 0;
    if (runsAgain) std::set_new_handler(nullptr);
    failingAllocation = order.allocation;
    int status = 0;
    try {
        status = programMain(argc, argv, environment);
    } catch (const std::bad_alloc&) {
        status = 3;
    }
    if (runsAgain) {
        failingAllocation = failingRead = failingWrite = 0;
        // What the first run read, the second shall read again.
        std::rewind(stdin);
        std::cin.clear();
        for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
            if (ftruncate(output, 0) == 0) lseek(output, 0, SEEK_SET);
        }
        status = programMain(argc, argv, environment);
    }
    std::exit(status);
}

int serve(int argc, char** argv, char** environment) {
    int ordersEnd = 0, answersEnd = 0;
    if (std::sscanf(std::getenv("VELKOR_FAULTS"), "%d:%d", &ordersEnd, &answersEnd) != 2) return 99;
    unsetenv("VELKOR_FAULTS");
    FILE* orders = fdopen(ordersEnd, "r");
    FILE* answers = fdopen(answersEnd, "w");
    counters = static_cast<Counters*>(
        mmap(nullptr, sizeof(Counters), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    Order order{};
    while (std::fscanf(orders, "%lu %7s %lu %lu %7s %lu", &order.allocation, order.which, &order.read, &order.write,
                       order.mode, &order.seconds) == 6) {
        const pid_t child = fork();
        if (child == 0) runChild(order, argc, argv, environment);
        int status = 0;
        waitpid(child, &status, 0);
        std::fprintf(answers, "%d %lu %lu %lu\n", status, counters->allocations, counters->reads, counters->writes);
        std::fflush(answers);
    }
    return 0;
}

} // namespace

extern "C" {

void* malloc(std::size_t size) noexcept {
    return allocationFails() ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept {
    return allocationFails() ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) noexcept {
    return allocationFails() ? nullptr : __libc_realloc(block, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
    return allocationFails() ? nullptr : __libc_memalign(alignment, size);
}
int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
    if (allocationFails()) return ENOMEM;
    *block = __libc_memalign(alignment, size);
    return *block == nullptr ? ENOMEM : 0;
}

ssize_t read(int file, void* buffer, std::size_t size) {
    static const auto next = real<ssize_t (*)(int, void*, std::size_t)>("read");
    return readFails() ? -1 : next(file, buffer, size);
}
ssize_t pread(int file, void* buffer, std::size_t size, off_t offset) {
    static const auto next = real<ssize_t (*)(int, void*, std::size_t, off_t)>("pread");
    return readFails() ? -1 : next(file, buffer, size, offset);
}
void* mmap(void* address, std::size_t size, int protection, int flags, int file, off_t offset) noexcept {
    static const auto next = real<void* (*)(void*, std::size_t, int, int, int, off_t)>("mmap");
    if (file >= 0 && readFails()) return MAP_FAILED;
    void* mapped = next(address, size, protection, flags, file, offset);
    if (file >= 0 && cutsMapped) {
        char path[32];
        std::snprintf(path, sizeof path, "/proc/self/fd/%d", file);
        if (truncate(path, 8192) != 0) std::abort();
    }
    return mapped;
}

int open(const char* path, int flags, ...) {
    static const auto next = real<int (*)(const char*, int, ...)>("open");
    va_list rest;
    va_start(rest, flags);
    const unsigned mode = va_arg(rest, unsigned);
    va_end(rest);
    const bool isWritten = (flags & O_ACCMODE) != O_RDONLY;
    return isWritten && writeFails(EACCES) ? -1 : next(path, flags, mode);
}
ssize_t write(int file, const void* bytes, std::size_t size) {
    static const auto next = real<ssize_t (*)(int, const void*, std::size_t)>("write");
    return file != STDERR_FILENO && writeFails(ENOSPC) ? -1 : next(file, bytes, size);
}
ssize_t writev(int file, const iovec* pieces, int count) {
    static const auto next = real<ssize_t (*)(int, const iovec*, int)>("writev");
    return file != STDERR_FILENO && writeFails(ENOSPC) ? -1 : next(file, pieces, count);
}
int fsync(int file) {
    static const auto next = real<int (*)(int)>("fsync");
    return writeFails(EIO) ? -1 : next(file);
}
int fchmod(int file, mode_t mode) noexcept {
    static const auto next = real<int (*)(int, mode_t)>("fchmod");
    return writeFails(EPERM) ? -1 : next(file, mode);
}
int linkat(int folder, const char* path, int otherFolder, const char* other, int flags) noexcept {
    static const auto next = real<int (*)(int, const char*, int, const char*, int)>("linkat");
    return writeFails(EIO) ? -1 : next(folder, path, otherFolder, other, flags);
}
int rename(const char* path, const char* other) noexcept {
    static const auto next = real<int (*)(const char*, const char*)>("rename");
    return writeFails(EIO) ? -1 : next(path, other);
}

int __libc_start_main(Main main, int argc, char** argv, int (*init)(int, char**, char**), void (*fini)(),
                      void (*loaderFini)(), void* stackEnd) {
    using Start = int (*)(Main, int, char**, int (*)(int, char**, char**), void (*)(), void (*)(), void*);
    programMain = main;
    return real<Start>("__libc_start_main")(std::getenv("VELKOR_FAULTS") != nullptr ? serve : main, argc, argv, init,
                                            fini, loaderFini, stackEnd);
}

} // extern "C"
