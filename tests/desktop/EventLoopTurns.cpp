// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Preloaded into a program, it writes the length of each long turn of its event loop to the file that
// QM_TURNS names, in milliseconds, a line each. A turn is what the main thread does between two of the
// loop's polls; what it waited for a processor meanwhile, others having it, is no part of it.

#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <time.h> // clock_gettime is no part of <ctime>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr long long kLong = 50; // milliseconds; shorter ones are not worth a line
constexpr long long kNanoseconds = 1'000'000;
// The loop watches the window system and its own wake-up at least; whoever waits for one thing is not the
// loop.
constexpr nfds_t kFewestWatched = 2;

long long now() {
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return 1'000 * kNanoseconds * time.tv_sec + time.tv_nsec;
}

class Turns {
public:
    Turns() {
        ::unsetenv("LD_PRELOAD"); // not for the programs that this one starts
        const char* file = std::getenv("QM_TURNS");
        if (file != nullptr)
            m_lines = ::open(file, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
        m_schedule = ::open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC);
        write("measuring");
    }

    void begin() {
        m_began = now();
        m_waited = waitedForProcessor();
    }
    void end() {
        if (m_began == 0)
            return;
        const long long length = (now() - m_began - (waitedForProcessor() - m_waited)) / kNanoseconds;
        if (length >= kLong)
            write(length);
    }

private:
    // By the main thread, since the program began.
    long long waitedForProcessor() const {
        char text[100] = {};
        long long ran = 0;
        long long waited = 0;
        if (::pread(m_schedule, text, sizeof text - 1, 0) > 0)
            std::sscanf(text, "%lld %lld", &ran, &waited);
        return waited;
    }
    void write(const char* line) const { ::dprintf(m_lines, "%s\n", line); }
    void write(long long number) const { ::dprintf(m_lines, "%lld\n", number); }

    int m_lines = -1;
    int m_schedule = -1;
    long long m_began = 0;
    long long m_waited = 0;
};

Turns g_turns; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

template <typename Poll>
int measured(nfds_t count, const Poll& poll) {
    const bool isLoop = count >= kFewestWatched && ::gettid() == ::getpid();
    if (isLoop)
        g_turns.end();
    const int result = poll();
    if (isLoop)
        g_turns.begin();
    return result;
}

template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" int poll(pollfd* watched, nfds_t count, int timeout) {
    static auto* const real = next<int(pollfd*, nfds_t, int)>("poll");
    return measured(count, [=] { return real(watched, count, timeout); });
}

extern "C" int ppoll(pollfd* watched, nfds_t count, const timespec* timeout, const sigset_t* signals) {
    static auto* const real = next<int(pollfd*, nfds_t, const timespec*, const sigset_t*)>("ppoll");
    return measured(count, [=] { return real(watched, count, timeout, signals); });
}
