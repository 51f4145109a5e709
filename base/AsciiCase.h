#pragma once

// The letter case of A to Z, whatever the locale. Other characters stay as they are.

template <typename Character>
constexpr Character AsciiUpper(Character character) {
    return character >= 'a' && character <= 'z' ? static_cast<Character>(character - 'a' + 'A') : character;
}

template <typename Character>
constexpr Character AsciiLower(Character character) {
    return character >= 'A' && character <= 'Z' ? static_cast<Character>(character - 'A' + 'a') : character;
}
