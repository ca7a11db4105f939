#pragma once

#include <string>

// Where things lie, the same on both sides.
namespace tavrik::bench {

struct Place {
    int left;
    int top;
    int width;
    int height;
};

inline constexpr int kWindowWidth = 1800;
inline constexpr int kWindowHeight = 1800;

// Buttons as tall as the style wants them, or as low as windows from another desktop have them.
enum class ButtonHeight { kEnough = 30, kTooLow = 20 };

constexpr Place place_of_button(int number, ButtonHeight height) {
    constexpr int kColumns = 20;
    return {number % kColumns * 90 + 5, number / kColumns * 36 + 3, 80, static_cast<int>(height)};
}

inline std::string caption_of_button(int number) { return "Button " + std::to_string(number); }

// Rows of as many squares without a gap.
struct Squares {
    int in_a_row;
    int side;

    constexpr int count() const { return in_a_row * in_a_row; }
    constexpr Place operator[](int number) const {
        return {number % in_a_row * side, number / in_a_row * side, side, side};
    }
};

// Ten thousand squares as children of the window, or a hundred in each of a hundred: in the same places of the window.
inline constexpr Squares kAllSquares{100, 8};
inline constexpr Squares kOuterSquares{10, 80};
inline constexpr Squares kInnerSquares{10, 8};

enum class Tree { kFlat, kNested };

}  // namespace tavrik::bench
