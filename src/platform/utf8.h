// Walking over UTF-8 text character by character. Bytes that form no character count as one U+FFFD
// each, so that damaged text is shown and never breaks anything.
#pragma once

#include <cstddef>
#include <string_view>

namespace platform {

inline constexpr char32_t kReplacement = 0xFFFD;

/// Takes the first character off a text that is not empty.
char32_t takeCharacter(std::string_view& text);

/// The byte positions where the character after and the one before `at` begin; `at` is a position
/// between two characters. They stay within the text.
std::size_t nextCharacter(std::string_view text, std::size_t at);
std::size_t previousCharacter(std::string_view text, std::size_t at);

}  // namespace platform
