#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/signal_pipe.h"

#include <QObject>

namespace tavrik::front::qt {

// Hands on whatever asks the whole program to end: the end of the session, the desktop's own Quit, a signal.
class QuitRequests final : public QObject {
public:
    explicit QuitRequests(ApplicationListener& listener);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ApplicationListener& listener_;
    SignalPipe signals_;
};

}  // namespace tavrik::front::qt
