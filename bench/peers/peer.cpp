#include "bench/peers/peer.h"

#include <limits>

namespace quillon::bench {

const std::vector<NamedPeer>& AllPeers()
{
    constexpr std::size_t kAny = std::numeric_limits<std::size_t>::max();
    static const std::vector<NamedPeer> peers{
        {"GKeyFile", MakeGKeyFilePeer, kAny},   {"QSettings", MakeQSettingsPeer, kAny}, {"inih", MakeInihPeer, kAny},
        {"iniparser", MakeIniparserPeer, 1000}, {"SimpleIni", MakeSimpleIniPeer, kAny},
    };
    return peers;
}

} // namespace quillon::bench
