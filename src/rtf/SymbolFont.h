#pragma once

#include <string>
#include <string_view>

namespace tarsil {

/// Whether the face is "Symbol", whose letters are signs of their own: texts hold them as U+F020 to
/// U+F0FF.
bool isSymbolFace(std::string_view family);

/// The signs of that face as ordinary characters, which any text face shows: Greek for Latin
/// letters, and mathematics. Other characters stay.
std::u16string ordinarySigns(std::u16string_view text);

} // namespace tarsil
