#include "engine/text_compare.h"

#include <algorithm>

namespace quillon::engine {

namespace {

constexpr char ToCapital(char character) noexcept
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

} // namespace

bool EqualIgnoringCase(std::string_view left, std::string_view right) noexcept
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return ToCapital(a) == ToCapital(b); });
}

} // namespace quillon::engine
