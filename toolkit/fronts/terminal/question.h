#pragma once

#include <string>

namespace tavrik::front::terminal {

// Something that is asked in front of the windows, and that takes the lines until it has ended.
class Question {
public:
    Question() = default;
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;
    virtual ~Question() = default;

    virtual std::string text() const = 0;
    // Ends the question with the answer in the line, or returns the lines that say why it is none.
    virtual std::string take(std::string line) = 0;

    // A question that ends without an answer is cancelled.
    void end() { ended_ = true; }
    const bool& ended() const { return ended_; }

private:
    bool ended_ = false;
};

}  // namespace tavrik::front::terminal
