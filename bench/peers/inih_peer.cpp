#include "bench/peers/peer.h"

#include <INIReader.h>
#include <ini.h>

#include <cstring>
#include <stdexcept>

namespace quillon::bench {
namespace {

int NoteSection(void* user, const char* section, const char* /*key*/, const char* /*value*/)
{
    auto* sections = static_cast<std::vector<std::string>*>(user);
    if (sections->empty() || sections->back() != section) {
        sections->emplace_back(section);
    }
    return 1;
}

struct Wanted
{
    const std::string& section;
    std::vector<std::pair<std::string, std::string>> entries;
};

int NoteEntry(void* user, const char* section, const char* key, const char* value)
{
    auto* wanted = static_cast<Wanted*>(user);
    if (wanted->section == section) {
        wanted->entries.emplace_back(key, value);
    }
    return 1;
}

void Parse(const std::string& file, ini_handler handler, void* user)
{
    if (ini_parse(file.c_str(), handler, user) != 0) {
        throw std::runtime_error("inih cannot read " + file);
    }
}

/// The parser for what reads a file once, its C++ reader for what holds it.
class InihPeer : public Peer
{
public:
    std::size_t ListSections(const std::string& file) override
    {
        std::vector<std::string> sections;
        Parse(file, NoteSection, &sections);
        return sections.size();
    }

    std::size_t ReadSection(const std::string& file, const std::string& section) override
    {
        Wanted wanted{section, {}};
        Parse(file, NoteEntry, &wanted);
        std::size_t length = 0;
        for (const auto& [key, value] : wanted.entries) {
            length += key.size() + value.size();
        }
        return length;
    }

    void Open(const std::string& file) override { m_reader = std::make_unique<INIReader>(file); }

    std::size_t Length(const std::string& section, const std::string& key) override
    {
        return m_reader->Get(section, key, {}).size();
    }

private:
    std::unique_ptr<INIReader> m_reader;
};

} // namespace

std::unique_ptr<Peer> MakeInihPeer()
{
    return std::make_unique<InihPeer>();
}

} // namespace quillon::bench
