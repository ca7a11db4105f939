#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/application_reports.h"
#include "toolkit/fronts/qt/open_dialogs.h"
#include "toolkit/fronts/qt/quit_requests.h"

#include <QApplication>
#include <QTimer>

#include <array>
#include <string>
#include <vector>

class QEventLoop;

namespace tavrik::front::qt {

// There is one at a time, as of QApplication.
class QtFront final : public Front {
public:
    explicit QtFront(const Start& start);
    ~QtFront() override;

    void run() override;
    void quit() override;
    bool pump(bool wait) override;
    void post(std::function<void()> call) override;
    void wake_in(std::chrono::milliseconds delay) override { wake_up_.start(delay); }
    void set_cursor(std::optional<Cursor> cursor) override;
    void set_help_visible(bool visible) override { reports_.set_help_visible(visible); }

    std::unique_ptr<WindowFace> make_window(WindowListener& listener) override;
    Rect available_area() override;

    std::size_t show_message(const MessageDescription& message, WindowFace* over) override;
    std::optional<MenuId> pop_up(const MenuDescription& menu, std::optional<Point> at, WindowFace* over) override;
    std::optional<std::string> choose_file(const FileChoice& choice, WindowFace* over) override;

private:
    // QApplication keeps referring to what it is started with.
    struct Arguments {
        explicit Arguments(std::string program_name);
        std::string program;
        std::array<char*, 2> values;
        int count = 1;
    };

    Arguments arguments_;
    QApplication application_;
    QuitRequests quit_requests_;
    ApplicationReports reports_;
    QObject posted_calls_;
    QTimer wake_up_;
    OpenDialogs dialogs_;
    std::vector<QEventLoop*> loops_;
    bool quitting_ = false;  // from quit() until run() has ended
};

}  // namespace tavrik::front::qt
