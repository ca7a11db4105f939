#pragma once

#include <QDialog>
#include <QMenu>
#include <QPointer>

#include <vector>

namespace tavrik::front::qt {

// The dialogs and pop-up menus that wait for an answer, so that the end of the program can cancel them.
class OpenDialogs {
public:
    // Shows `dialog` modal to its window, or to the whole program if it has none, until it is answered or cancelled,
    // or deleted together with the window.
    void run(QDialog& dialog);
    // The same for a menu at a place of the screen.
    void run(QMenu& menu, QPoint place);

    // Innermost first.
    void cancel_all();

private:
    std::vector<QPointer<QWidget>> open_;
};

// A dialog that ends with the scope, or before that with the window it is over.
template <class Dialog>
class ScopedDialog {
public:
    explicit ScopedDialog(QWidget* over) : dialog_(new Dialog(over)) {}
    ~ScopedDialog() { delete dialog_.data(); }
    ScopedDialog(const ScopedDialog&) = delete;
    ScopedDialog& operator=(const ScopedDialog&) = delete;

    Dialog* operator->() const { return dialog_.data(); }
    Dialog& operator*() const { return *dialog_; }
    explicit operator bool() const { return !dialog_.isNull(); }

private:
    QPointer<Dialog> dialog_;
};

}  // namespace tavrik::front::qt
