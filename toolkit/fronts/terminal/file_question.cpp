#include "toolkit/fronts/terminal/file_question.h"

#include "toolkit/fronts/terminal/captions.h"
#include "toolkit/fronts/terminal/chosen_path.h"
#include "toolkit/fronts/terminal/screen_text.h"

#include <utility>

namespace tavrik::front::terminal {

FileQuestion::FileQuestion(const FileChoice& choice) : choice_(choice) {}

std::string FileQuestion::text() const { return file_choice_text(choice_); }

std::string FileQuestion::take(std::string line) {
    const auto path_of = [this](std::string_view typed) { return absolute_path(typed, choice_.initial_folder); };

    // A carriage return at the end is the name's own if there is such a file, and otherwise part of the line's end.
    if (line.ends_with('\r') && !refusal_of(path_of(line)).empty()) line.pop_back();
    if (line.empty()) {
        end();
        return {};
    }
    std::string path = path_of(line);
    const std::string refusal = refusal_of(path);
    if (!refusal.empty()) return printable(path) + " can't be chosen: " + refusal + '\n' + path_prompt(choice_);

    chosen_ = std::move(path);
    end();
    return {};
}

}  // namespace tavrik::front::terminal
