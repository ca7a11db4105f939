#include "toolkit/fronts/qt/application_reports.h"

#include "toolkit/fronts/qt/path_bytes.h"

#include <QApplication>
#include <QFileOpenEvent>

#include <string>

namespace tavrik::front::qt {

ApplicationReports::ApplicationReports(ApplicationListener& listener) : listener_(listener) {
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) { listener_.activated(state == Qt::ApplicationActive); });
}

bool ApplicationReports::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip) return !help_visible_;
    if (event->type() != QEvent::FileOpen || watched != qApp) return false;
    const QUrl url = static_cast<QFileOpenEvent*>(event)->url();
    if (!url.isLocalFile()) return false;
    const std::string path = to_path(url);
    listener_.open_documents({&path, 1});
    return true;
}

}  // namespace tavrik::front::qt
