#include "fuzz/profile_model.h"

#include <cctype>

namespace quillon::fuzz {
namespace {

std::string StripAll(std::string_view text, std::string_view dropped)
{
    while (!text.empty() && dropped.find(text.back()) != std::string_view::npos) {
        text.remove_suffix(1);
    }
    while (!text.empty() && dropped.find(text.front()) != std::string_view::npos) {
        text.remove_prefix(1);
    }
    return std::string(text);
}

std::string LineEndOf(const std::string& firstEnd)
{
    return firstEnd.empty() ? "\r\n" : firstEnd;
}

/// The value's place behind the equals sign: blanks around it stay where they are.
std::string WithValue(const std::string& line, std::size_t equals, const std::string& value)
{
    std::size_t begin = equals + 1;
    while (begin < line.size() && (line[begin] == ' ' || line[begin] == '\t')) {
        ++begin;
    }
    std::size_t end = line.size();
    while (end > begin && (line[end - 1] == ' ' || line[end - 1] == '\t')) {
        --end;
    }
    return line.substr(0, begin) + value + line.substr(end);
}

} // namespace

std::string ProfileModel::Strip(std::string_view text)
{
    return StripAll(text, " \t");
}

std::string ProfileModel::StripBlanks(std::string_view text)
{
    return StripAll(text, " ");
}

std::string ProfileModel::Unquote(const std::string& value)
{
    if (value.size() >= 2 && value[0] == value[value.size() - 1] && (value[0] == '"' || value[0] == '\'')) {
        return value.substr(1, value.size() - 2);
    }
    return value;
}

bool ProfileModel::IsSame(std::string_view left, std::string_view right)
{
    if (left.size() != right.size()) {
        return false;
    }
    for (std::size_t place = 0; place < left.size(); ++place) {
        const int difference = static_cast<unsigned char>(left[place]) ^ static_cast<unsigned char>(right[place]);
        const bool isLetter = std::isalpha(static_cast<unsigned char>(left[place])) != 0;
        if (difference != 0 && !(difference == 0x20 && isLetter)) {
            return false;
        }
    }
    return true;
}

std::string ProfileModel::Joined(const std::vector<std::string>& names, std::size_t buffer)
{
    std::string all;
    for (const std::string& name : names) {
        all += name + '\0';
    }
    if (all.size() + 1 > buffer) {
        all.resize(buffer >= 2 ? buffer - 2 : 0);
    }
    return all;
}

ProfileModel::ProfileModel(std::string text)
    : m_text(std::move(text))
{
    Split();
}

void ProfileModel::Split()
{
    m_lines.clear();
    for (std::size_t place = 0; place < m_text.size();) {
        Line& line = m_lines.emplace_back();
        std::size_t end = place;
        while (end < m_text.size() && m_text[end] != '\r' && m_text[end] != '\n') {
            ++end;
        }
        line.text = m_text.substr(place, end - place);
        const bool isPair = end + 1 < m_text.size() && m_text[end] == '\r' && m_text[end + 1] == '\n';
        line.end = m_text.substr(end, isPair ? 2 : 1);
        place = end + line.end.size();
        Understand(line);
    }
}

void ProfileModel::Join()
{
    m_text.clear();
    for (const Line& line : m_lines) {
        m_text += line.text;
        m_text += line.end;
    }
    Split(); // a carriage return and a line feed may have met
}

void ProfileModel::Understand(Line& line)
{
    const std::string text = Strip(line.text);
    const std::size_t close = text.rfind(']');
    line.equals = line.text.find('=');
    if (text.empty() || text[0] == ';') {
        return;
    }
    if (text[0] == '[' && close != std::string::npos) {
        line.kind = Kind::Header;
        line.name = Strip(text.substr(1, close - 1));
    } else if (line.equals != std::string::npos) {
        line.kind = Kind::Entry;
        line.name = Strip(line.text.substr(0, line.equals));
    }
}

std::optional<ProfileModel::Part> ProfileModel::FindPart(const std::string& section) const
{
    const std::string wanted = Strip(section);
    std::optional<Part> part;
    if (wanted.empty()) {
        part = Part{0, 0, m_lines.size()};
    }
    for (std::size_t place = 0; place < m_lines.size(); ++place) {
        const bool isHeader = m_lines[place].kind == Kind::Header;
        if (isHeader && part) {
            part->end = place;
            return part;
        }
        if (isHeader && IsSame(m_lines[place].name, wanted)) {
            part = Part{place, place + 1, m_lines.size()};
        }
    }
    return part;
}

std::optional<std::size_t> ProfileModel::FindKey(const std::string& section, const std::string& key) const
{
    const std::optional<Part> part = FindPart(section);
    const std::string wanted = Strip(key);
    for (std::size_t place = part ? part->begin : 0; part && place < part->end; ++place) {
        if (m_lines[place].kind == Kind::Entry && IsSame(m_lines[place].name, wanted)) {
            return place;
        }
    }
    return std::nullopt;
}

void ProfileModel::Insert(std::size_t place, const std::string& text)
{
    const std::string end = LineEndOf(m_lines.empty() ? "" : m_lines.front().end);
    if (place > 0 && m_lines[place - 1].end.empty()) {
        m_lines[place - 1].end = end;
    }
    Line line;
    line.text = text;
    line.end = end;
    m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(place), line);
}

void ProfileModel::Erase(std::size_t begin, std::size_t end)
{
    m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(begin),
                  m_lines.begin() + static_cast<std::ptrdiff_t>(end));
    Join();
}

std::vector<std::string> ProfileModel::Sections() const
{
    std::vector<std::string> names;
    for (const Line& line : m_lines) {
        if (line.kind == Kind::Header && !line.name.empty()) {
            names.push_back(line.name);
        }
    }
    return names;
}

std::vector<std::string> ProfileModel::Keys(const std::string& section) const
{
    std::vector<std::string> names;
    const std::optional<Part> part = FindPart(section);
    for (std::size_t place = part ? part->begin : 0; part && place < part->end; ++place) {
        if (m_lines[place].kind == Kind::Entry) {
            names.push_back(m_lines[place].name);
        }
    }
    return names;
}

std::optional<std::string> ProfileModel::Value(const std::string& section, const std::string& key) const
{
    const std::optional<std::size_t> place = FindKey(section, key);
    return place ? std::optional(Strip(m_lines[*place].text.substr(m_lines[*place].equals + 1))) : std::nullopt;
}

std::string ProfileModel::Answer(const std::string& section, const std::string& key, const std::string& missing) const
{
    std::string otherwise = missing;
    while (!otherwise.empty() && otherwise.back() == ' ') {
        otherwise.pop_back();
    }
    return Unquote(Value(section, key).value_or(otherwise));
}

void ProfileModel::Set(const std::string& section, const std::string& key, const std::string& value)
{
    if (const std::optional<std::size_t> place = FindKey(section, key)) {
        Line& line = m_lines[*place];
        line.text = WithValue(line.text, line.equals, Strip(value));
        return Join();
    }
    const std::optional<Part> part = FindPart(section);
    std::size_t place = m_lines.size();
    if (part) {
        for (place = part->end; place > part->begin && Strip(m_lines[place - 1].text).empty();) {
            --place; // the blank lines before the next header stay there
        }
    } else {
        Insert(place++, "[" + Strip(section) + "]");
    }
    Insert(place, Strip(key) + "=" + Strip(value));
    Join();
}

void ProfileModel::RemoveKey(const std::string& section, const std::string& key)
{
    if (const std::optional<std::size_t> place = FindKey(section, key)) {
        Erase(*place, *place + 1);
    }
}

void ProfileModel::RemoveSection(const std::string& section)
{
    if (const std::optional<Part> part = FindPart(section)) {
        Erase(part->header, part->end);
    }
}

} // namespace quillon::fuzz
