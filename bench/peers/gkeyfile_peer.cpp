#include "bench/peers/peer.h"

#include <cstring>
#include <glib.h>
#include <stdexcept>

namespace quillon::bench {
namespace {

class GKeyFilePeer : public Peer
{
public:
    std::size_t ListSections(const std::string& file) override
    {
        Open(file);
        gsize count = 0;
        g_strfreev(g_key_file_get_groups(m_file.get(), &count));
        m_file.reset();
        return count;
    }

    std::size_t ReadSection(const std::string& file, const std::string& section) override
    {
        Open(file);
        std::size_t length = 0;
        gchar** keys = g_key_file_get_keys(m_file.get(), section.c_str(), nullptr, nullptr);
        for (gchar** key = keys; *key != nullptr; ++key) {
            length += std::strlen(*key) + ValueLength(section.c_str(), *key);
        }
        g_strfreev(keys);
        m_file.reset();
        return length;
    }

    void Open(const std::string& file) override
    {
        m_file.reset(g_key_file_new());
        if (g_key_file_load_from_file(m_file.get(), file.c_str(), G_KEY_FILE_NONE, nullptr) == FALSE) {
            throw std::runtime_error("GKeyFile cannot read " + file);
        }
    }

    std::size_t Length(const std::string& section, const std::string& key) override
    {
        return ValueLength(section.c_str(), key.c_str());
    }

private:
    std::size_t ValueLength(const char* section, const char* key)
    {
        gchar* value = g_key_file_get_value(m_file.get(), section, key, nullptr);
        const std::size_t length = std::strlen(value);
        g_free(value);
        return length;
    }

    std::unique_ptr<GKeyFile, void (*)(GKeyFile*)> m_file{nullptr, &g_key_file_free};
};

} // namespace

std::unique_ptr<Peer> MakeGKeyFilePeer()
{
    return std::make_unique<GKeyFilePeer>();
}

} // namespace quillon::bench
