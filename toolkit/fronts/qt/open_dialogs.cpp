#include "toolkit/fronts/qt/open_dialogs.h"

#include <QEventLoop>

namespace tavrik::front::qt {

void OpenDialogs::run(QDialog& dialog) {
    dialog.setWindowModality(dialog.parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
    open_.emplace_back(&dialog);

    // QDialog::exec() hands over to the platform's own dialog, which waits on when it is cancelled from the program.
    QEventLoop until_answered;
    QObject::connect(&dialog, &QDialog::finished, &until_answered, &QEventLoop::quit);
    QObject::connect(&dialog, &QObject::destroyed, &until_answered, &QEventLoop::quit);
    dialog.show();
    until_answered.exec();
    open_.pop_back();
}

void OpenDialogs::run(QMenu& menu, QPoint place) {
    open_.emplace_back(&menu);
    menu.exec(place);
    open_.pop_back();
}

void OpenDialogs::cancel_all() {
    const auto open = open_;
    for (auto each = open.rbegin(); each != open.rend(); ++each) {
        if (auto* const dialog = qobject_cast<QDialog*>(each->data())) {
            dialog->reject();
        } else if (*each) {
            (*each)->close();
        }
    }
}

}  // namespace tavrik::front::qt
