#include "ui/platform/single_instance.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace quillon::ui {

SingleInstance::SingleInstance(const std::filesystem::path& folder)
    // The folder's own descriptor carries the lock, so nothing is written. Programs started from here do not inherit
    // it.
    : m_descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    m_second = m_descriptor >= 0 && ::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

SingleInstance::~SingleInstance()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

} // namespace quillon::ui
