#pragma once

#include <vector>

namespace tavrik::front::terminal {

class TerminalWindow;

// The windows from back to front. Shared by the front and its windows, since either may go first.
class WindowStack {
public:
    void add(TerminalWindow& window);
    void remove(TerminalWindow& window);
    void raise(TerminalWindow& window);
    // The visible window before all others, or nullptr. A modal one comes before those that aren't, and a minimized one
    // behind those.
    TerminalWindow* frontmost() const;
    // Tells the windows concerned if another one has become the frontmost since the last time. May destroy windows.
    void report_activation();

private:
    std::vector<TerminalWindow*> windows_;
    TerminalWindow* active_ = nullptr;
};

}  // namespace tavrik::front::terminal
