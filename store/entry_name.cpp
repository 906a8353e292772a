#include "store/entry_name.h"

#include "store/code_page.h"
#include "store/profile_lines.h"

#include <algorithm>
#include <optional>
#include <string>

namespace quillon::store {

bool HasControlCharacter(std::string_view text) noexcept
{
    return std::any_of(text.begin(), text.end(), [](char character) {
        const auto code = static_cast<unsigned char>(character);
        return code < 0x20 || code == 0x7F;
    });
}

NameFault EntryNameFault(std::string_view name)
{
    if (name.empty()) {
        return NameFault::Empty;
    }
    if (HasControlCharacter(name)) {
        return NameFault::ControlCharacter;
    }
    const std::optional<std::string> bytes = FromUtf8(name);
    if (!bytes) {
        return NameFault::NotInCodePage;
    }
    if (WithoutQuotes(WithoutBlanks(*bytes)) != *bytes) {
        return NameFault::NotReadBack;
    }
    return bytes->size() > kLongestEntry ? NameFault::TooLong : NameFault::None;
}

} // namespace quillon::store
