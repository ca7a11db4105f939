#pragma once

class QWidget;

// The Qt front on a platform without a screen, with the tool's classes.
namespace tavrik::bench {

void start();
// Ends the classes and the runtime. The exit status.
int finish();

// Lets happen what has happened by now, and deletes what is to be deleted later.
void settle();
// Returns once the shown window has been painted.
void wait_until_painted(QWidget& window);
// The one window that is shown.
QWidget& shown_window();

}  // namespace tavrik::bench
