#include "tests/fronts/qt/front_fixture.h"

#include <QAccessible>
#include <QMenu>
#include <QMenuBar>

namespace tavrik::front::qt {
namespace {

MenuDescription entry(MenuId id, std::string text, std::string shortcut = "") {
    MenuDescription entry;
    entry.id = id;
    entry.text = std::move(text);
    entry.shortcut = std::move(shortcut);
    return entry;
}

MenuDescription separator(MenuId id) {
    MenuDescription line = entry(id, "-");
    line.separator = true;
    return line;
}

class QtMenus : public QtFrontTest {
protected:
    QtMenus() {
        MenuDescription file = entry(1, "&File");
        file.children = {entry(10, "&Open\xE2\x80\xA6", "Cmd+O"), separator(11), entry(12, "&Quit", "Cmd+Q")};
        file.children[2].role = MenuRole::kQuit;
        MenuDescription edit = entry(2, "&Edit");
        edit.children = {entry(20, "&Undo", "Cmd+Z"), entry(21, "Cu&t", "Cmd+X")};
        menus = {file, edit};
    }

    void show_menus() {
        apply();
        show();
    }
    void apply() { face->apply_menus(menus); }
    QMenuBar& bar() { return *window().findChild<QMenuBar*>(); }
    QMenu& opened() { return *qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    void press_key(Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(window().windowHandle(), key, with);
    }
    void open(int index) {
        QTest::mouseClick(&bar(), Qt::LeftButton, {}, bar().actionGeometry(bar().actions().at(index)).center());
    }
    void click(int index) {
        QTest::mouseClick(&opened(), Qt::LeftButton, {},
                          opened().actionGeometry(opened().actions().at(index)).center());
    }
    Log reports() const {
        Log reports;
        for (const std::string& line : listener.log) {
            if (line == "opening" || line.starts_with("chosen")) reports.push_back(line);
        }
        return reports;
    }

    std::vector<MenuDescription> menus;
};

TEST_F(QtMenus, An_entry_is_chosen_with_the_mouse) {
    show_menus();
    open(0);
    click(2);
    EXPECT_EQ(reports(), (Log{"opening", "chosen 12"}));
}

TEST_F(QtMenus, An_entry_is_chosen_with_the_keyboard) {
    show_menus();
    press_key(Qt::Key_E, Qt::AltModifier);
    ASSERT_TRUE(QApplication::activePopupWidget());
    QTest::keyClick(&opened(), Qt::Key_T);
    EXPECT_EQ(reports(), (Log{"opening", "chosen 21"}));
}

TEST_F(QtMenus, A_shortcut_chooses_unless_its_entry_is_disabled) {
    menus[1].children[1].enabled = false;
    show_menus();
    press_key(Qt::Key_Z, Qt::ControlModifier);
    press_key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(reports(), (Log{"opening", "chosen 20", "opening"}));
}

TEST_F(QtMenus, Entries_show_what_they_are_told) {
    menus[1].children[0].checked = true;
    menus[1].children[1].visible = false;
    show_menus();
    open(1);
    const auto actions = opened().actions();
    EXPECT_TRUE(actions[0]->isChecked());
    EXPECT_FALSE(actions[1]->isVisible());
    EXPECT_TRUE(bar().actions()[0]->menu()->actions()[1]->isSeparator());
    EXPECT_EQ(bar().actions()[0]->menu()->actions()[2]->menuRole(), QAction::QuitRole);
    EXPECT_EQ(actions[0]->menuRole(), QAction::NoRole);
}

TEST_F(QtMenus, A_checked_entry_stays_so_until_told_otherwise) {
    menus[1].children[0].checked = true;
    show_menus();
    press_key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(reports().back(), "chosen 20");
    EXPECT_TRUE(bar().actions()[1]->menu()->actions()[0]->isChecked());
}

TEST_F(QtMenus, Entries_that_stay_the_same_in_kind_keep_their_actions) {
    show_menus();
    const QList<QAction*> before = bar().actions()[1]->menu()->actions();
    menus[1].children[0].text = "&Redo";
    menus[1].children[0].enabled = false;
    apply();
    EXPECT_EQ(bar().actions()[1]->menu()->actions(), before);
    EXPECT_EQ(before[0]->text(), QStringLiteral("&Redo"));
    EXPECT_FALSE(before[0]->isEnabled());
}

TEST_F(QtMenus, Menus_may_be_rebuilt_while_one_opens) {
    listener.once["opening"] = [this] {
        menus[1].children = {entry(22, "&Paste"), separator(23), entry(21, "Cu&t"), entry(24, "&Clear")};
        menus.insert(menus.begin(), entry(3, "&New"));
        apply();
    };
    show_menus();
    open(1);
    ASSERT_TRUE(QApplication::activePopupWidget());
    EXPECT_EQ(bar().actions().size(), 3);
    click(3);
    EXPECT_EQ(reports().back(), "chosen 24");
}

TEST_F(QtMenus, The_menu_that_opens_may_vanish) {
    listener.once["opening"] = [this] {
        menus.pop_back();
        apply();
    };
    show_menus();
    open(1);
    front->pump(false);
    EXPECT_EQ(bar().actions().size(), 1);
}

TEST_F(QtMenus, Menus_may_be_rebuilt_by_the_choice_itself) {
    listener.once["chosen 20"] = [this] {
        menus[1].children.erase(menus[1].children.begin());
        apply();
    };
    show_menus();
    open(1);
    click(0);
    front->pump(false);
    EXPECT_EQ(reports(), (Log{"opening", "chosen 20"}));
    EXPECT_EQ(bar().actions()[1]->menu()->actions().size(), 1);
}

TEST_F(QtMenus, The_window_may_be_destroyed_by_a_choice) {
    listener.once["chosen 12"] = [this] { face.reset(); };
    show_menus();
    open(0);
    click(2);
    front->pump(false);
    EXPECT_FALSE(face);
    EXPECT_EQ(reports().back(), "chosen 12");
}

TEST_F(QtMenus, Submenus_nest) {
    MenuDescription recent = entry(13, "Open &Recent");
    recent.children = {entry(130, "valley.map")};
    menus[0].children.push_back(recent);
    show_menus();
    QMenu* const submenu = bar().actions()[0]->menu()->actions().at(3)->menu();
    ASSERT_TRUE(submenu);
    submenu->actions()[0]->trigger();
    EXPECT_EQ(reports(), Log{"chosen 130"});
}

TEST_F(QtMenus, A_bar_without_entries_takes_no_room) {
    show_menus();
    EXPECT_TRUE(bar().isVisible());
    face->apply_menus({});
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(window().height(), 119);
}

TEST_F(QtMenus, Assistive_technology_reads_the_entries) {
    show_menus();
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&bar());
    ASSERT_EQ(reader->childCount(), 2);
    EXPECT_EQ(reader->child(1)->text(QAccessible::Name), QStringLiteral("Edit"));

    open(1);
    QAccessibleInterface* const menu = QAccessible::queryAccessibleInterface(&opened());
    ASSERT_EQ(menu->childCount(), 2);
    EXPECT_EQ(menu->child(0)->role(), QAccessible::MenuItem);
    EXPECT_EQ(menu->child(1)->text(QAccessible::Name), QStringLiteral("Cut"));
}

class QtPopUp : public QtMenus {
protected:
    // What is chosen of the menu Edit by what `act` does while it is open.
    std::optional<MenuId> chosen_by(std::function<void(QMenu&)> act) {
        when_popped_up(std::move(act));
        return front->pop_up(menus[1], Point{40, 50}, face.get());
    }
    void when_popped_up(std::function<void(QMenu&)> act) {
        front->post([this, act] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            return menu && menu->isVisible() ? act(*menu) : when_popped_up(act);
        });
    }
    static void click_entry(QMenu& menu, int index) {
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions().at(index)).center());
    }
};

TEST_F(QtPopUp, The_entry_chosen_by_mouse_or_by_key_is_the_answer) {
    show();
    EXPECT_EQ(chosen_by([](QMenu& menu) {
                  EXPECT_EQ(menu.geometry().topLeft(), QPoint(40, 50));
                  click_entry(menu, 1);
              }),
              21U);
    EXPECT_EQ(chosen_by([](QMenu& menu) {
                  QTest::keyClick(&menu, Qt::Key_Down);
                  QTest::keyClick(&menu, Qt::Key_Return);
              }),
              20U);
    EXPECT_EQ(chosen_by([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_T); }), 21U);
}

TEST_F(QtPopUp, Escape_a_disabled_entry_the_end_and_a_window_that_goes_choose_nothing) {
    menus[1].children[1].enabled = false;
    show();
    EXPECT_FALSE(chosen_by([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Escape); }));
    EXPECT_FALSE(chosen_by([](QMenu& menu) {
        click_entry(menu, 1);
        EXPECT_TRUE(menu.isVisible());
        menu.close();
    }));
    EXPECT_FALSE(chosen_by([this](QMenu&) { face.reset(); }));
    EXPECT_FALSE(chosen_by([this](QMenu&) { front->quit(); }));
    EXPECT_FALSE(front->pop_up(menus[1], std::nullopt, nullptr)) << "not shown any more";
}

TEST_F(QtMenus, Entries_take_their_style) {
    menus[1].children[0].bold = true;
    menus[1].children[1].italic = menus[1].children[1].underline = true;
    show_menus();
    const auto actions = bar().actions()[1]->menu()->actions();
    EXPECT_TRUE(actions[0]->font().bold());
    EXPECT_FALSE(actions[0]->font().italic());
    EXPECT_TRUE(actions[1]->font().italic() && actions[1]->font().underline());
}

TEST_F(QtMenus, A_shortcut_meets_menus_that_are_up_to_date) {
    menus[1].children[0].enabled = false;
    listener.once["opening"] = [this] {
        menus[1].children[0].enabled = true;
        apply();
    };
    show_menus();
    press_key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(reports(), (Log{"opening", "chosen 20"}));
}

TEST_F(QtMenus, A_mnemonic_opens_a_menu_after_a_choice_by_mouse) {
    show_menus();
    open(0);
    click(2);
    // Offscreen, where no window manager does, nothing else makes the window active again.
    front->pump(false);
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    press_key(Qt::Key_E, Qt::AltModifier);
    ASSERT_TRUE(QApplication::activePopupWidget());
    EXPECT_EQ(&opened(), bar().actions()[1]->menu());
}

}  // namespace
}  // namespace tavrik::front::qt
