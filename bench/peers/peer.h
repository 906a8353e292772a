#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::bench {

/// Another reader of such files, used in the way that costs it least.
class Peer
{
public:
    virtual ~Peer() = default;

    /// Reads the file anew and lists its sections. @return their number
    virtual std::size_t ListSections(const std::string& file) = 0;
    /// Reads the file anew, then a section's key names and all values of it. @return their characters, all together
    virtual std::size_t ReadSection(const std::string& file, const std::string& section) = 0;
    /// Reads the file anew and holds it for Length.
    virtual void Open(const std::string& file) = 0;
    /// Looks up a value of the open file. @return its characters
    virtual std::size_t Length(const std::string& section, const std::string& key) = 0;
};

struct NamedPeer
{
    std::string_view name;
    std::unique_ptr<Peer> (*make)();
    std::size_t mostModels; ///< what takes it hours is left out
};

[[nodiscard]] std::unique_ptr<Peer> MakeGKeyFilePeer();
[[nodiscard]] std::unique_ptr<Peer> MakeQSettingsPeer();
[[nodiscard]] std::unique_ptr<Peer> MakeInihPeer();
[[nodiscard]] std::unique_ptr<Peer> MakeIniparserPeer();
[[nodiscard]] std::unique_ptr<Peer> MakeSimpleIniPeer();

[[nodiscard]] const std::vector<NamedPeer>& AllPeers();

} // namespace quillon::bench
