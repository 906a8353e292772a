#include "store/maker_name.h"

#include "store/code_page.h"
#include "store/entry_name.h"
#include "store/profile_lines.h"

#include <optional>
#include <string>

namespace quillon::store {

NameFault FileNameFault(std::string_view name) noexcept
{
    if (name.empty()) {
        return NameFault::Empty;
    }
    if (HasControlCharacter(name)) {
        return NameFault::ControlCharacter;
    }
    if (name.find_first_of("/\\|") != std::string_view::npos) {
        return NameFault::ForbiddenCharacter;
    }
    if (name == "." || name == "..") {
        return NameFault::FolderName;
    }
    return name.back() == ' ' || name.back() == '.' ? NameFault::BadEnding : NameFault::None;
}

NameFault MakerNameFault(std::string_view name)
{
    if (const NameFault fault = FileNameFault(name); fault != NameFault::None) {
        return fault;
    }
    const std::optional<std::string> bytes = FromUtf8(name);
    if (!bytes) {
        return NameFault::NotInCodePage;
    }
    // The index and the saved systems hold it as a value.
    if (WithoutQuotes(WithoutBlanks(*bytes)) != *bytes) {
        return NameFault::NotReadBack;
    }
    return bytes->size() > kLongestMakerName ? NameFault::TooLong : NameFault::None;
}

} // namespace quillon::store
