#include "toolkit/fronts/qt/file_dialog.h"

#include "toolkit/fronts/qt/file_filters.h"
#include "toolkit/fronts/qt/path_bytes.h"
#include "toolkit/fronts/qt/text.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QScreen>
#include <QStyle>

#include <filesystem>

namespace tavrik::front::qt {
namespace {

// Qt's own dialog doesn't list names that aren't UTF-8; typed as a URL ("file:///maps/M%FCnchen.map") they can be
// chosen all the same.
class FileDialog final : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    std::optional<std::string> chosen_path() const {
        if (result() != Accepted) return std::nullopt;
        if (typed_path_) return typed_path_;
        const QList<QUrl> urls = selectedUrls();
        if (urls.isEmpty()) return std::nullopt;
        return to_path(urls.first());
    }

protected:
    void accept() override {
        typed_path_ = path_of_typed_url();
        typed_path_ ? done(Accepted) : QFileDialog::accept();
    }

private:
    std::optional<std::string> path_of_typed_url() const {
        const auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (!name) return std::nullopt;
        const QUrl url = QUrl::fromEncoded(name->text().trimmed().toUtf8(), QUrl::StrictMode);
        if (!url.isLocalFile()) return std::nullopt;

        std::string path = to_path(url);
        std::error_code error;
        if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
        return path;
    }

    std::optional<std::string> typed_path_;
};

// Above all else in the dialog, which has no place for it.
void add_prompt(QFileDialog& dialog, const std::string& prompt) {
    auto* const label = new QLabel(to_qt(prompt), &dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMargin(dialog.style()->pixelMetric(QStyle::PM_LayoutTopMargin, nullptr, &dialog));
    dialog.layout()->setMenuBar(label);
}

// A platform's own dialog has no layout here: its title has to say everything.
void set_texts(QFileDialog& dialog, const FileChoice& choice) {
    QStringList title;
    if (!choice.title.empty()) title << to_qt(choice.title);
    if (!choice.prompt.empty()) {
        if (dialog.layout()) {
            add_prompt(dialog, choice.prompt);
        } else {
            title << to_qt(choice.prompt).simplified();
        }
    }
    if (!title.isEmpty()) dialog.setWindowTitle(title.join(QStringLiteral(": ")));
    if (!choice.action_caption.empty()) dialog.setLabelText(QFileDialog::Accept, to_qt(choice.action_caption));
    if (!choice.cancel_caption.empty()) dialog.setLabelText(QFileDialog::Reject, to_qt(choice.cancel_caption));
}

// A place that no screen shows any more would leave the program waiting for a dialog that nobody sees.
void place(QFileDialog& dialog, const Point& position) {
    const QPoint place(position.left, position.top);
    if (QGuiApplication::screenAt(place)) dialog.move(place);
}

}  // namespace

std::optional<std::string> choose_file(OpenDialogs& dialogs, const FileChoice& choice, QWidget* over) {
    const ScopedDialog<FileDialog> dialog(over);
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setSupportedSchemes({QStringLiteral("file")});
    dialog->setNameFilters(to_name_filters(choice.filters));
    if (!choice.initial_folder.empty()) dialog->setDirectoryUrl(to_url(choice.initial_folder));
    if (!choice.suggested_name.empty()) dialog->selectFile(to_qt(choice.suggested_name));
    set_texts(*dialog, choice);
    if (choice.position) place(*dialog, *choice.position);

    dialogs.run(*dialog);

    if (!dialog) return std::nullopt;
    return dialog->chosen_path();
}

}  // namespace tavrik::front::qt
