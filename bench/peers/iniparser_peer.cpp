#include "bench/peers/peer.h"

#include <cstring>
#include <iniparser/iniparser.h>
#include <stdexcept>

namespace quillon::bench {
namespace {

class IniparserPeer : public Peer
{
public:
    std::size_t ListSections(const std::string& file) override
    {
        Open(file);
        // Its own function for a section's name counts from the first one at each call.
        std::vector<const char*> sections;
        for (int entry = 0; entry < m_file->n; ++entry) {
            if (std::strchr(m_file->key[entry], ':') == nullptr) {
                sections.push_back(m_file->key[entry]);
            }
        }
        m_file.reset();
        return sections.size();
    }

    std::size_t ReadSection(const std::string& file, const std::string& section) override
    {
        Open(file);
        const int count = iniparser_getsecnkeys(m_file.get(), section.c_str());
        std::vector<const char*> keys(static_cast<std::size_t>(count));
        iniparser_getseckeys(m_file.get(), section.c_str(), keys.data());
        std::size_t length = 0;
        for (const char* key : keys) {
            length += std::strlen(key) - section.size() - 1;
            length += std::strlen(iniparser_getstring(m_file.get(), key, ""));
        }
        m_file.reset();
        return length;
    }

    void Open(const std::string& file) override
    {
        m_file.reset(iniparser_load(file.c_str()));
        if (!m_file) {
            throw std::runtime_error("iniparser cannot read " + file);
        }
    }

    std::size_t Length(const std::string& section, const std::string& key) override
    {
        return std::strlen(iniparser_getstring(m_file.get(), (section + ":" + key).c_str(), ""));
    }

private:
    std::unique_ptr<dictionary, void (*)(dictionary*)> m_file{nullptr, &iniparser_freedict};
};

} // namespace

std::unique_ptr<Peer> MakeIniparserPeer()
{
    return std::make_unique<IniparserPeer>();
}

} // namespace quillon::bench
