#pragma once

// The one character that stands in Key::text for a key that types nothing.
namespace tavrik::front {

inline constexpr char32_t kHomeKey = 1;
inline constexpr char32_t kKeypadEnterKey = 3;
inline constexpr char32_t kEndKey = 4;
inline constexpr char32_t kInsertKey = 5;
inline constexpr char32_t kBackspaceKey = 8;
inline constexpr char32_t kTabKey = 9;
inline constexpr char32_t kPageUpKey = 11;
inline constexpr char32_t kPageDownKey = 12;
inline constexpr char32_t kReturnKey = 13;
inline constexpr char32_t kEscapeKey = 27;
inline constexpr char32_t kLeftKey = 28;
inline constexpr char32_t kRightKey = 29;
inline constexpr char32_t kUpKey = 30;
inline constexpr char32_t kDownKey = 31;
inline constexpr char32_t kDeleteKey = 127;
inline constexpr char32_t kFirstFunctionKey = 0xF704;  // F1; the others follow

}  // namespace tavrik::front
