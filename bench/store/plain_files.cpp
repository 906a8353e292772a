#include "bench/store/plain_files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quillon::bench {

FileBytes ReadPlainly(const char* file)
{
    const int descriptor = ::open(file, O_RDONLY | O_CLOEXEC);
    struct stat status = {};
    if (descriptor < 0 || ::fstat(descriptor, &status) != 0) {
        throw std::system_error(errno, std::generic_category(), file);
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    FileBytes bytes{std::make_unique_for_overwrite<char[]>(size), size};
    const ssize_t count = ::read(descriptor, bytes.data.get(), size);
    ::close(descriptor);
    if (count != status.st_size) {
        throw std::system_error(EIO, std::generic_category(), file);
    }
    return bytes;
}

} // namespace quillon::bench
