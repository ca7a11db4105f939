#include "toolkit/fronts/qt/quit_requests.h"

#include <QApplication>
#include <QEvent>
#include <QSessionManager>

namespace tavrik::front::qt {

QuitRequests::QuitRequests(ApplicationListener& listener)
    : listener_(listener), signals_([this] { listener_.quit_requested(); }) {
    qApp->installEventFilter(this);
#ifndef QT_NO_SESSIONMANAGER
    // The session manager is done with when the signal returns: no queued connection.
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this] { listener_.quit_requested(); }, Qt::DirectConnection);
#endif
}

bool QuitRequests::eventFilter(QObject* watched, QEvent* event) {
    if (watched != qApp || event->type() != QEvent::Quit) return false;
    event->ignore();
    listener_.quit_requested();
    return true;
}

}  // namespace tavrik::front::qt
