#include "toolkit/fronts/qt/file_dialog.h"

#include "toolkit/fronts/qt/file_filters.h"
#include "toolkit/fronts/qt/path_bytes.h"
#include "toolkit/fronts/qt/text.h"

#include <QFileDialog>
#include <QLineEdit>

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

void set_captions(QFileDialog& dialog, const FileChoice& choice) {
    const std::string& title = choice.title.empty() ? choice.prompt : choice.title;
    if (!title.empty()) dialog.setWindowTitle(to_qt(title));
    if (!choice.action_caption.empty()) dialog.setLabelText(QFileDialog::Accept, to_qt(choice.action_caption));
    if (!choice.cancel_caption.empty()) dialog.setLabelText(QFileDialog::Reject, to_qt(choice.cancel_caption));
}

}  // namespace

std::optional<std::string> choose_file(OpenDialogs& dialogs, const FileChoice& choice, QWidget* over) {
    const ScopedDialog<FileDialog> dialog(over);
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setSupportedSchemes({QStringLiteral("file")});
    dialog->setNameFilters(to_name_filters(choice.filters));
    if (!choice.initial_folder.empty()) dialog->setDirectoryUrl(to_url(choice.initial_folder));
    set_captions(*dialog, choice);

    dialogs.run(*dialog);

    if (!dialog) return std::nullopt;
    return dialog->chosen_path();
}

}  // namespace tavrik::front::qt
