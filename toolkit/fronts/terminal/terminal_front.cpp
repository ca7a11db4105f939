#include "toolkit/fronts/terminal/terminal_front.h"

#include "toolkit/fronts/terminal/command.h"
#include "toolkit/fronts/terminal/descriptor.h"
#include "toolkit/fronts/terminal/file_question.h"
#include "toolkit/fronts/terminal/line_reader.h"
#include "toolkit/fronts/terminal/menu_question.h"
#include "toolkit/fronts/terminal/message_question.h"
#include "toolkit/fronts/terminal/output.h"
#include "toolkit/fronts/terminal/posted_calls.h"
#include "toolkit/fronts/terminal/screen_text.h"
#include "toolkit/fronts/terminal/terminal_window.h"
#include "toolkit/fronts/terminal/window_stack.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

namespace tavrik::front::terminal {
namespace {

enum class Wait { kNo, kForSomething };

// Sets a flag for as long as it lives.
class Flagged {
public:
    explicit Flagged(bool& flag) : flag_(flag) { flag_ = true; }
    Flagged(const Flagged&) = delete;
    Flagged& operator=(const Flagged&) = delete;
    ~Flagged() { flag_ = false; }

private:
    bool& flag_;
};

class TerminalFront final : public Front {
public:
    TerminalFront(const Start& start, int input, int output)
        : application_(start.application), program_name_(start.program_name), input_(input), output_(output) {}

    void run() override;
    void quit() override;
    bool pump(bool wait) override {
        turn(wait ? Wait::kForSomething : Wait::kNo, quitting_);
        return !quitting_;
    }
    void post(std::function<void()> call) override { posted_.post(std::move(call)); }
    void wake_in(std::chrono::milliseconds delay) override { wakes_at_ = Clock::now() + delay; }
    // Here is neither a pointer nor help beside it.
    void set_cursor(std::optional<Cursor>) override {}
    void set_help_visible(bool) override {}

    std::unique_ptr<WindowFace> make_window(WindowListener& listener) override;
    Rect available_area() override { return {}; }
    std::size_t show_message(const MessageDescription& message, WindowFace* over) override;
    std::optional<MenuId> pop_up(const MenuDescription& menu, std::optional<Point> at, WindowFace* over) override;
    std::optional<std::string> choose_file(const FileChoice& choice, WindowFace* over) override;

private:
    class Asking;

    using Clock = std::chrono::steady_clock;

    void turn(Wait wait, const bool& over);
    void wake_if_due();
    int longest_wait_ms() const;
    void await(Wait wait);
    void ask(Question& question);
    Question* open_question() const;

    void refresh();
    void open_menus();
    std::string screen() const;
    void say(std::string_view text);

    void take(std::string line);
    void use(const TerminalWindow::Line& line, const ControlView& view);
    void open_menu(Control& control, const ControlView& view);
    void choose(const MenuEntry& entry, const TerminalWindow& window);
    void end_of_input();

    ApplicationListener& application_;
    std::string program_name_;
    IgnoreBrokenPipe ignore_broken_pipe_;
    LineReader input_;
    int output_;
    PostedCalls posted_;
    std::shared_ptr<WindowStack> windows_ = std::make_shared<WindowStack>();
    std::optional<Clock::time_point> wakes_at_;
    std::vector<Question*> questions_;  // the innermost last
    std::optional<std::string> shown_;  // the screen printed last, unless something else came before it since
    bool opening_menus_ = false;
    bool end_reported_ = false;
    bool active_ = false;
    bool quitting_ = false;
};

// Keeps a question in front of what was there, which is printed anew afterwards.
class TerminalFront::Asking {
public:
    Asking(TerminalFront& front, Question& question) : front_(front), question_(question) {
        front_.questions_.push_back(&question_);
        front_.shown_.reset();
    }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;
    ~Asking() {
        std::erase(front_.questions_, &question_);
        front_.shown_.reset();
    }

private:
    TerminalFront& front_;
    Question& question_;
};

// The program has the terminal from its start to its end.
void TerminalFront::run() {
    if (!quitting_ && !std::exchange(active_, true)) application_.activated(true);
    while (!quitting_) turn(Wait::kForSomething, quitting_);
}

void TerminalFront::quit() {
    quitting_ = true;
    for (Question* question : questions_) question->end();
}

// One turn of a loop that goes on until `over`: what was posted, the wake-up, the screen, and then at most one line, so
// that every line meets the screen that the one before it left behind.
void TerminalFront::turn(Wait wait, const bool& over) {
    const bool has_run = posted_.run();
    if (over) return;
    wake_if_due();
    if (over) return;
    refresh();
    if (over) return;

    await(has_run ? Wait::kNo : wait);
    if (auto line = input_.next()) {
        take(std::move(*line));
    } else if (input_.ended()) {
        end_of_input();
    } else {
        posted_.run();
    }
}

void TerminalFront::await(Wait wait) {
    while (!input_.ready()) {
        std::array<pollfd, 2> watched{{{input_.descriptor(), POLLIN, 0}, {posted_.descriptor(), POLLIN, 0}}};
        const int changed = ::poll(watched.data(), watched.size(), wait == Wait::kNo ? 0 : longest_wait_ms());
        if (changed < 0 && errno == EINTR) continue;
        // Whatever poll() has against the input, reading it tells.
        if (changed > 0 && watched[0].revents != 0) input_.fill();
        if (wait == Wait::kNo || changed <= 0 || watched[1].revents != 0) return;
    }
}

void TerminalFront::wake_if_due() {
    if (!wakes_at_ || Clock::now() < *wakes_at_) return;
    wakes_at_.reset();
    application_.woken();
}

// Until the next wake-up; -1 is for ever.
int TerminalFront::longest_wait_ms() const {
    if (!wakes_at_) return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*wakes_at_ - Clock::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
}

std::unique_ptr<WindowFace> TerminalFront::make_window(WindowListener& listener) {
    return std::make_unique<TerminalWindow>(listener, windows_);
}

std::size_t TerminalFront::show_message(const MessageDescription& message, WindowFace*) {
    MessageQuestion question(message);
    ask(question);
    return question.pressed();
}

std::optional<MenuId> TerminalFront::pop_up(const MenuDescription& menu, std::optional<Point>, WindowFace*) {
    MenuQuestion question(menu);
    ask(question);
    return question.chosen();
}

std::optional<std::string> TerminalFront::choose_file(const FileChoice& choice, WindowFace*) {
    FileQuestion question(choice);
    ask(question);
    return question.chosen();
}

void TerminalFront::ask(Question& question) {
    const Asking asking(*this, question);
    while (!question.ended()) turn(Wait::kForSomething, question.ended());
}

Question* TerminalFront::open_question() const {
    const auto found = std::find_if(questions_.rbegin(), questions_.rend(), [](auto* each) { return !each->ended(); });
    return found == questions_.rend() ? nullptr : *found;
}

void TerminalFront::refresh() {
    if (open_question() == nullptr) {
        windows_->report_activation();
        open_menus();
    }
    std::string text = screen();
    if (shown_ == text) return;
    say(text);
    shown_ = std::move(text);
}

// The core applies the menus anew meanwhile, and may do anything else too.
void TerminalFront::open_menus() {
    TerminalWindow* window = windows_->frontmost();
    if (window == nullptr || opening_menus_) return;
    const Flagged opening(opening_menus_);
    window->listener().menus_opening();
}

std::string TerminalFront::screen() const {
    if (const Question* question = open_question()) return question->text();
    const TerminalWindow* window = windows_->frontmost();
    return window == nullptr ? "" : window_text(window->view(program_name_));
}

// Once nobody can read the output, the program is as good as without a person.
void TerminalFront::say(std::string_view text) {
    if (!write_all(output_, text)) input_.close();
}

void TerminalFront::take(std::string line) {
    if (Question* question = open_question()) return say(question->take(std::move(line)));

    if (const TerminalWindow* window = windows_->frontmost()) {
        const WindowView view = window->view(program_name_);
        if (const auto index = find_control(line, view.controls)) {
            return use(window->control_lines()[*index], view.controls[*index]);
        }
        if (const auto index = find_control(behind_menu(line), view.controls)) {
            return open_menu(*window->control_lines()[*index].control, view.controls[*index]);
        }
    }

    open_menus();
    if (const TerminalWindow* window = windows_->frontmost()) {
        const std::vector<MenuEntry> entries = window->entries();
        if (const MenuEntry* entry = find_entry(line, entries)) return choose(*entry, *window);
    }
    say("Type the number or the caption of a control, Menu/Entry, or menu and a control.\n");
}

void TerminalFront::use(const TerminalWindow::Line& line, const ControlView& view) {
    if (!view.enabled) return say(view.caption + " can't be used now.\n");
    line.control->use(line.part);
}

void TerminalFront::open_menu(Control& control, const ControlView& view) {
    const std::string caption = view.caption;
    if (!view.enabled || !control.open_menu()) say(caption + " has no menu.\n");
}

void TerminalFront::choose(const MenuEntry& entry, const TerminalWindow& window) {
    if (!entry.enabled) return say(entry.path() + " can't be used now.\n");
    window.listener().menu_chosen(entry.id);
}

void TerminalFront::end_of_input() {
    if (Question* question = open_question()) return question->end();
    if (!std::exchange(end_reported_, true)) application_.quit_requested();
    quit();
}

}  // namespace

std::unique_ptr<Front> make_terminal_front(const Start& start, int input, int output) {
    open_standard_descriptors();
    return std::make_unique<TerminalFront>(start, input, output);
}

}  // namespace tavrik::front::terminal
