// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

namespace sprout {

namespace {

constexpr std::array kEndSignals{SIGTERM, SIGHUP, SIGINT};

std::atomic<int> pipeOfSignals{-1};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may use no lock");

extern "C" void TellEndSignal(int /*signal*/)
{
    const int error = errno;
    const char byte = 0;
    // A full pipe already says what one more byte would say.
    static_cast<void>(::write(pipeOfSignals.load(), &byte, 1) == 1);
    errno = error;
}

void Handle(int signal, void (*handler)(int))
{
    struct sigaction now {};
    if (::sigaction(signal, nullptr, &now) != 0 || now.sa_handler == SIG_IGN)
        return;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

} // namespace

EndSignals::EndSignals()
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    readEnd = Descriptor(ends[0]);
    writeEnd = Descriptor(ends[1]);
    pipeOfSignals = writeEnd.Number();
    for (const int signal : kEndSignals)
        Handle(signal, TellEndSignal);
}

EndSignals::~EndSignals()
{
    if (readEnd.Number() < 0)
        return;
    for (const int signal : kEndSignals)
        Handle(signal, SIG_DFL);
    pipeOfSignals = -1;
}

} // namespace sprout
