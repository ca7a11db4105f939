#pragma once

#include "toolkit/front/front.h"

#include <QObject>

namespace tavrik::front::qt {

// Hands on what happens to the program as a whole, besides its end: it comes to the front or leaves it, and the desktop
// has files for it. Also keeps help tags back while they aren't wanted.
class ApplicationReports final : public QObject {
public:
    explicit ApplicationReports(ApplicationListener& listener);

    void set_help_visible(bool visible) { help_visible_ = visible; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ApplicationListener& listener_;
    bool help_visible_ = true;
};

}  // namespace tavrik::front::qt
