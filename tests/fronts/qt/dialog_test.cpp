#include "tests/fronts/qt/front_fixture.h"
#include "tests/support/temporary_folder.h"

#include <QAbstractItemView>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>

#include <fstream>

namespace tavrik::front::qt {
namespace {

class QtMessage : public QtFrontTest {
protected:
    QtMessage() {
        message.text = "valley.map was <b>changed</b>.";
        message.explanation = "Save <i>it</i>?";
        message.icon = MessageIcon::kCaution;
        message.buttons = {"Save", "Cancel", "Don't Save"};
        message.cancel_button = 1;
    }

    std::size_t answered_by(std::function<void(QMessageBox&)> act) {
        when_open<QMessageBox>(std::move(act));
        return front->show_message(message, face.get());
    }

    static QAbstractButton& button(const QMessageBox& box, const char* caption) {
        for (QAbstractButton* button : box.buttons()) {
            if (button->text() == QLatin1String(caption)) return *button;
        }
        throw std::runtime_error(caption);
    }

    MessageDescription message;
};

TEST_F(QtMessage, The_button_pressed_is_the_answer) {
    show();
    for (std::size_t i = 0; i < message.buttons.size(); ++i) {
        const auto click = [&](QMessageBox& box) {
            QTest::mouseClick(&button(box, message.buttons[i].c_str()), Qt::LeftButton);
        };
        EXPECT_EQ(answered_by(click), i);
    }
}

TEST_F(QtMessage, Return_answers_with_the_default_and_Escape_with_the_cancel_button) {
    message.default_button = 2;
    show();
    EXPECT_EQ(answered_by([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }), 2u);
    EXPECT_EQ(answered_by([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), 1u);
    EXPECT_EQ(answered_by([](QMessageBox& box) { box.close(); }), 1u);
}

TEST_F(QtMessage, Without_a_default_or_a_cancel_button_only_a_press_answers) {
    message.default_button = message.cancel_button = message.buttons.size();
    show();
    const auto try_all = [&](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClick(&box, Qt::Key_Escape);
        box.close();
        ASSERT_TRUE(box.isVisible());
        QTest::mouseClick(&button(box, "Cancel"), Qt::LeftButton);
    };
    EXPECT_EQ(answered_by(try_all), 1u);
    EXPECT_EQ(answered_by([this](QMessageBox&) { front->quit(); }), message.buttons.size());
}

TEST_F(QtMessage, It_shows_its_texts_as_they_stand_and_lets_them_be_selected) {
    show();
    answered_by([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Map Tool"));
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        int texts = 0;
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            if (label->text().isEmpty()) continue;
            ++texts;
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
            EXPECT_TRUE(label->textInteractionFlags() & Qt::TextSelectableByMouse);
        }
        EXPECT_EQ(texts, 2);
        box.close();
    });
}

TEST_F(QtMessage, It_blocks_its_window_or_without_one_the_program) {
    show();
    answered_by([this](QMessageBox& box) {
        EXPECT_EQ(box.windowModality(), Qt::WindowModal);
        EXPECT_EQ(box.parentWidget(), &window());
        box.close();
    });
    when_open<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
        box.close();
    });
    front->show_message(message, nullptr);
}

TEST_F(QtMessage, Quit_cancels_what_is_open_and_ends_run) {
    show();
    std::vector<std::size_t> answers;
    when_open<QMessageBox>([&](QMessageBox&) {
        when_open<QFileDialog>([&](QFileDialog&) { front->quit(); });
        EXPECT_FALSE(front->choose_file({}, nullptr));
        answers.push_back(front->show_message(message, face.get()));  // not shown any more
    });
    front->post([&] { answers.push_back(front->show_message(message, face.get())); });
    front->run();
    EXPECT_EQ(answers, (std::vector<std::size_t>{1, 1}));
}

TEST_F(QtMessage, It_goes_with_its_window) {
    show();
    EXPECT_EQ(answered_by([this](QMessageBox&) { face.reset(); }), 1u);
}

class QtFileChoice : public QtFrontTest {
protected:
    QtFileChoice() {
        choice.title = "Load a map";
        choice.initial_folder = folder_.path();
        choice.filters = {{"Maps", {"map"}}};
        for (const char* name : {"VALLEY.MAP", "hill.map", "notes.txt", "M\xFCnchen.map"}) {
            std::ofstream(path(name)).put('x');
        }
    }

    std::string path(const std::string& name) const { return choice.initial_folder + '/' + name; }

    std::optional<std::string> answered_by(std::function<void(QFileDialog&)> act) {
        when_open<QFileDialog>(std::move(act));
        return front->choose_file(choice, face.get());
    }

    static void type(QFileDialog& dialog, const std::string& text) {
        auto& name = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name.setText(QString::fromStdString(text));
        QTest::keyClick(&name, Qt::Key_Return);
    }

    // The files that the dialog lists, once it lists as many.
    static QStringList listed(QFileDialog& dialog, int count) {
        const auto* view = dialog.findChild<QAbstractItemView*>(QStringLiteral("treeView"));
        const auto& model = *view->model();
        EXPECT_TRUE(QTest::qWaitFor([&] { return model.rowCount(view->rootIndex()) == count; }));
        QStringList names;
        for (int row = 0; row < model.rowCount(view->rootIndex()); ++row) {
            names << model.index(row, 0, view->rootIndex()).data().toString();
        }
        names.sort(Qt::CaseInsensitive);
        return names;
    }

    FileChoice choice;

private:
    test::TemporaryFolder folder_;
};

TEST_F(QtFileChoice, A_typed_name_is_the_answer) {
    show();
    EXPECT_EQ(answered_by([](QFileDialog& dialog) { type(dialog, "hill.map"); }), path("hill.map"));
}

TEST_F(QtFileChoice, A_cancelled_dialog_has_no_answer) {
    show();
    EXPECT_FALSE(answered_by([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }));
}

TEST_F(QtFileChoice, The_filter_takes_any_letter_case_and_all_files_is_a_choice) {
    show();
    answered_by([](QFileDialog& dialog) {
        EXPECT_EQ(listed(dialog, 2), (QStringList{QStringLiteral("hill.map"), QStringLiteral("VALLEY.MAP")}));
        dialog.selectNameFilter(dialog.nameFilters().at(1));
        EXPECT_TRUE(listed(dialog, 3).contains(QStringLiteral("notes.txt")));
        dialog.reject();
    });
}

TEST_F(QtFileChoice, A_name_that_is_not_UTF_8_can_be_typed_as_a_URL) {
    show();
    const std::string url = "file://" + path("M%FCnchen.map");
    EXPECT_EQ(answered_by([&](QFileDialog& dialog) { type(dialog, url); }), path("M\xFCnchen.map"));
}

TEST_F(QtFileChoice, It_opens_as_told) {
    choice.action_caption = "Load";
    choice.cancel_caption = "Leave";
    show();
    answered_by([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Load a map"));
        EXPECT_EQ(dialog.labelText(QFileDialog::Accept), QStringLiteral("Load"));
        EXPECT_EQ(dialog.labelText(QFileDialog::Reject), QStringLiteral("Leave"));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
        dialog.reject();
    });
}

TEST_F(QtFileChoice, The_prompt_stands_above_the_files_as_it_is_written) {
    choice.prompt = "Which <b>map</b>?";
    show();
    answered_by([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Load a map"));
        const QWidget* const prompt = dialog.layout()->menuBar();
        ASSERT_TRUE(prompt && prompt->isVisible());
        EXPECT_EQ(qobject_cast<const QLabel*>(prompt)->text(), QStringLiteral("Which <b>map</b>?"));
        EXPECT_EQ(qobject_cast<const QLabel*>(prompt)->textFormat(), Qt::PlainText);
        for (const QWidget* other : dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            const bool is_below = other->y() > prompt->geometry().bottom();
            EXPECT_TRUE(other == prompt || !other->isVisible() || is_below) << other->objectName().toStdString();
        }
        dialog.reject();
    });
}

TEST_F(QtFileChoice, A_suggested_name_needs_no_more_than_Return) {
    choice.suggested_name = "hill.map";
    show();
    EXPECT_EQ(answered_by([](QFileDialog& dialog) {
                  QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
              }),
              path("hill.map"));
}

TEST_F(QtFileChoice, It_opens_where_it_is_told_if_a_screen_shows_that_place) {
    show();
    choice.position = Point{.left = 40, .top = 30};
    answered_by([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.pos(), QPoint(40, 30));
        dialog.reject();
    });
    choice.position = Point{.left = -30'000, .top = 30};
    answered_by([](QFileDialog& dialog) {
        EXPECT_TRUE(QGuiApplication::screenAt(dialog.pos()));
        dialog.reject();
    });
}

TEST_F(QtFileChoice, The_first_of_several_types_lists_the_files_of_all) {
    choice.filters = {{"Maps, Texts", {"map", "txt"}}, {"Maps", {"map"}}, {"Texts", {"txt"}}};
    show();
    answered_by([](QFileDialog& dialog) {
        EXPECT_EQ(listed(dialog, 3).last(), QStringLiteral("VALLEY.MAP"));
        dialog.selectNameFilter(dialog.nameFilters().at(2));
        EXPECT_EQ(listed(dialog, 1), QStringList{QStringLiteral("notes.txt")});
        dialog.reject();
    });
}

}  // namespace
}  // namespace tavrik::front::qt
