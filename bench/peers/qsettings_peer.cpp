#include "bench/peers/peer.h"

#include <QSettings>
#include <QString>
#include <QStringList>

#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

namespace quillon::bench {
namespace {

/// QSettings remembers files that it has read, by their time: another time makes it read the file again.
void MakeLookNew(const std::string& file)
{
    static time_t second = 1'000'000'000;
    const timespec times[2] = {{++second, 0}, {second, 0}};
    ::utimensat(AT_FDCWD, file.c_str(), &times[0], 0);
}

class QSettingsPeer : public Peer
{
public:
    std::size_t ListSections(const std::string& file) override
    {
        Open(file);
        const QStringList sections = m_settings->childGroups();
        m_settings.reset();
        return static_cast<std::size_t>(sections.size());
    }

    std::size_t ReadSection(const std::string& file, const std::string& section) override
    {
        Open(file);
        m_settings->beginGroup(QString::fromStdString(section));
        qsizetype length = 0;
        for (const QString& key : m_settings->childKeys()) {
            length += key.size() + m_settings->value(key).toString().size();
        }
        m_settings.reset();
        return static_cast<std::size_t>(length);
    }

    void Open(const std::string& file) override
    {
        MakeLookNew(file);
        m_settings = std::make_unique<QSettings>(QString::fromStdString(file), QSettings::IniFormat);
    }

    std::size_t Length(const std::string& section, const std::string& key) override
    {
        const QString path = QString::fromLatin1((section + "/" + key).c_str());
        return static_cast<std::size_t>(m_settings->value(path).toString().size());
    }

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace

std::unique_ptr<Peer> MakeQSettingsPeer()
{
    return std::make_unique<QSettingsPeer>();
}

} // namespace quillon::bench
