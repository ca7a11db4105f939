#pragma once

#include <QSocketNotifier>

#include <signal.h>

#include <array>
#include <functional>
#include <memory>
#include <vector>

namespace tavrik::front::qt {

// Turns the signals that ask a program to end into calls from the event loop. There is one at a time.
class SignalPipe {
public:
    explicit SignalPipe(std::function<void()> asked_to_end);
    ~SignalPipe();
    SignalPipe(const SignalPipe&) = delete;
    SignalPipe& operator=(const SignalPipe&) = delete;

private:
    struct Taken {
        int signal;
        struct sigaction before;
    };

    static constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

    void take_signals();
    void drain() const;

    int read_end_ = -1;
    int write_end_ = -1;
    std::vector<Taken> taken_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::function<void()> asked_to_end_;
};

}  // namespace tavrik::front::qt
