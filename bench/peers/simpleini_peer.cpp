#include "bench/peers/peer.h"

#define SI_NO_CONVERSION // bytes as they are
#include <SimpleIni.h>

#include <cstring>
#include <stdexcept>

namespace quillon::bench {
namespace {

/// Telling letter case apart, which is quicker.
class SimpleIniPeer : public Peer
{
public:
    std::size_t ListSections(const std::string& file) override
    {
        Open(file);
        CSimpleIniCaseA::TNamesDepend sections;
        m_file->GetAllSections(sections);
        m_file.reset();
        return sections.size();
    }

    std::size_t ReadSection(const std::string& file, const std::string& section) override
    {
        Open(file);
        CSimpleIniCaseA::TNamesDepend keys;
        m_file->GetAllKeys(section.c_str(), keys);
        std::size_t length = 0;
        for (const CSimpleIniCaseA::Entry& key : keys) {
            length += std::strlen(key.pItem) + std::strlen(m_file->GetValue(section.c_str(), key.pItem, ""));
        }
        m_file.reset();
        return length;
    }

    void Open(const std::string& file) override
    {
        m_file = std::make_unique<CSimpleIniCaseA>();
        if (m_file->LoadFile(file.c_str()) != SI_OK) {
            throw std::runtime_error("SimpleIni cannot read " + file);
        }
    }

    std::size_t Length(const std::string& section, const std::string& key) override
    {
        return std::strlen(m_file->GetValue(section.c_str(), key.c_str(), ""));
    }

private:
    std::unique_ptr<CSimpleIniCaseA> m_file;
};

} // namespace

std::unique_ptr<Peer> MakeSimpleIniPeer()
{
    return std::make_unique<SimpleIniPeer>();
}

} // namespace quillon::bench
