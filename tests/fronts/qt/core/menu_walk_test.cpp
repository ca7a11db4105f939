#include "tests/fronts/qt/core/qt_core_test.h"
#include "ui/menu_bar.h"

#include <QMenu>
#include <QMenuBar>

#include <string>

namespace tavrik::test {
namespace {

// What an entry shows, and what is below it.
std::string told(const Ref<MenuItem>& item, bool is_menu) {
    if (item->Text().view() == "-") return item->Visible() ? "-" : "(-)";
    std::string text(item->Text().view());
    if (!item->Enabled() && item->Visible()) text += " off";
    if (item->Checked() && !is_menu) text += " checked";
    if (item->_Bold()) text += " bold";
    if (!item->Visible()) text = '(' + text + ')';
    for (std::int32_t i = 0; i < item->Count(); ++i) {
        const Ref<MenuItem> child = item->Item(i);
        text += (i == 0 ? ": [" : ", ") + told(child, child->Count() > 0);
    }
    return item->Count() > 0 ? text + ']' : text;
}

std::string seen(const QAction& action) {
    if (action.isSeparator()) return action.isVisible() ? "-" : "(-)";
    std::string text = action.text().toStdString();
    // To Qt, what can't be seen is disabled too.
    if (!action.isEnabled() && action.isVisible()) text += " off";
    if (action.isChecked()) text += " checked";
    if (action.font().bold()) text += " bold";
    if (!action.isVisible()) text = '(' + text + ')';
    const QMenu* const menu = action.menu();
    if (!menu || menu->actions().isEmpty()) return text;
    for (const QAction* const entry : menu->actions()) {
        text += (entry == menu->actions().front() ? ": [" : ", ") + seen(*entry);
    }
    return text + ']';
}

class MenuWalk : public QtCoreTest {
protected:
    MenuWalk() {
        window_->set_MenuBar(bar_);
        window_->Show();
    }

    // Any item of the tree; the bar where the walk down ends at once.
    Ref<MenuItem> any(bool may_be_bar) {
        Ref<MenuItem> item = bar_;
        while (item->Count() > 0 && (random(3) > 0 || (!may_be_bar && item == bar_))) {
            item = item->Item(random(item->Count()));
        }
        return item;
    }

    Ref<MenuItem> new_item() {
        Ref<MenuItem> item = make<MenuItem>();
        const std::string name = random(6) == 0 ? "-" : "entry " + std::to_string(++made_);
        item->Constructor(String(name), nullptr);
        item->set_Name(String(name));
        return item;
    }

    void step() {
        const Ref<MenuItem> item = any(false);
        switch (random(9)) {
            case 0:
            case 1:
                if (const Ref<MenuItem> menu = any(true); menu->Text().view() != "-") {
                    menu->Insert(random(menu->Count() + 1), new_item());
                }
                return;
            case 2:
                if (const Ref<MenuItem> menu = any(true); menu->Count() > 0) menu->Remove(random(menu->Count()));
                return;
            case 3:
                if (item != bar_) bar_->_Swap(item->Name(), new_item());
                return;
            case 4:
                if (item != bar_ && bar_->Count() < 5) bar_->_InstallClone(item);
                return;
            case 5:
                return item->set_Enabled(!item->Enabled());
            case 6:
                return item->set_Checked(!item->Checked());
            case 7:
                return item->set_Visible(!item->Visible());
            default:
                return item->set__Bold(!item->_Bold());
        }
    }

    QMenuBar& shown_bar() { return *shown_window().findChild<QMenuBar*>(); }

    int made_ = 0;
    Ref<MenuBar> bar_ = make<MenuBar>();
};

TEST_F(MenuWalk, Qt_shows_what_the_core_says_after_every_step) {
    for (int i = 0; i < 500; ++i) {
        step();
        core::front().pump(false);
        const QList<QAction*> shown = shown_bar().actions();
        ASSERT_EQ(shown.size(), bar_->Count()) << "after step " << i;
        for (std::int32_t menu = 0; menu < bar_->Count(); ++menu) {
            ASSERT_EQ(seen(*shown[menu]), told(bar_->Item(menu), true)) << "after step " << i;
        }
    }
    EXPECT_GT(made_, 50);
}

}  // namespace
}  // namespace tavrik::test
