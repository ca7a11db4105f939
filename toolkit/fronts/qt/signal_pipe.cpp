#include "toolkit/fronts/qt/signal_pipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <utility>

namespace tavrik::front::qt {
namespace {

std::atomic<int> signalled_descriptor{-1};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler reads it");

extern "C" void write_to_pipe(int) {
    const int error_before = errno;
    const char byte = 0;
    // A full pipe is as good as one byte in it.
    [[maybe_unused]] const ssize_t written = ::write(signalled_descriptor, &byte, 1);
    errno = error_before;
}

void close_on_exec_and_never_block(int descriptor) {
    ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
}

}  // namespace

SignalPipe::SignalPipe(std::function<void()> asked_to_end) : asked_to_end_(std::move(asked_to_end)) {
    int ends[2];
    if (::pipe(ends) != 0) return;  // the signals keep what they did before
    read_end_ = ends[0];
    write_end_ = ends[1];
    close_on_exec_and_never_block(read_end_);
    close_on_exec_and_never_block(write_end_);

    notifier_ = std::make_unique<QSocketNotifier>(read_end_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        drain();
        asked_to_end_();
    });
    signalled_descriptor = write_end_;
    take_signals();
}

SignalPipe::~SignalPipe() {
    for (const Taken& taken : taken_) ::sigaction(taken.signal, &taken.before, nullptr);
    if (read_end_ < 0) return;
    signalled_descriptor = -1;
    notifier_.reset();
    ::close(read_end_);
    ::close(write_end_);
}

void SignalPipe::take_signals() {
    struct sigaction action {};
    action.sa_handler = write_to_pipe;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    for (const int signal : kSignals) {
        struct sigaction before {};
        ::sigaction(signal, nullptr, &before);
        if (before.sa_handler == SIG_IGN) continue;  // started by nohup, or in the background
        ::sigaction(signal, &action, nullptr);
        taken_.push_back({signal, before});
    }
}

void SignalPipe::drain() const {
    char bytes[64];
    while (::read(read_end_, bytes, sizeof bytes) > 0) {
    }
}

}  // namespace tavrik::front::qt
