#include "store/profile_strings.h"

#include "store/profile_lines.h"

#include <algorithm>
#include <string>

namespace quillon::store {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kLineBreakers = "\r\n\0"sv;

std::size_t CopyText(std::string_view text, std::span<char> buffer)
{
    if (buffer.empty()) {
        return 0;
    }
    const std::size_t count = text.copy(buffer.data(), buffer.size() - 1);
    buffer[count] = '\0';
    return count;
}

std::size_t CopyList(std::string_view names, std::span<char> buffer)
{
    if (names.size() < buffer.size()) {
        return CopyText(names, buffer);
    }
    const std::size_t count = names.copy(buffer.data(), buffer.size() - std::min<std::size_t>(buffer.size(), 2));
    std::fill(buffer.begin() + static_cast<std::ptrdiff_t>(count), buffer.end(), '\0');
    return count;
}

std::string_view WithoutTrailingBlanks(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool StaysOneLine(const OptionalText& text)
{
    return !text || text->find_first_of(kLineBreakers) == std::string_view::npos;
}

std::optional<std::string> Copy(const OptionalText& text)
{
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

} // namespace

std::size_t GetPrivateProfileString(ProfileStore& store, OptionalText section, OptionalText key,
                                    OptionalText defaultValue, std::span<char> buffer, const std::string& file)
{
    if (!section) {
        return CopyList(store.SectionNames(file, buffer.size()), buffer);
    }
    const PrivateProfile& profile = store.Read(file);
    if (!key) {
        return CopyList(profile.KeyNames(*section, buffer.size()), buffer);
    }
    const std::string_view value =
        profile.Value(*section, *key).value_or(WithoutTrailingBlanks(defaultValue.value_or("")));
    return CopyText(WithoutQuotes(value), buffer);
}

bool WritePrivateProfileString(ProfileStore& store, OptionalText section, OptionalText key, OptionalText value,
                               const std::string& file)
{
    if (!section || !StaysOneLine(section) || !StaysOneLine(key) || !StaysOneLine(value)) {
        return false;
    }
    return store.Edit(file, {std::string(*section), Copy(key), Copy(value)});
}

} // namespace quillon::store
