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

void ReplacePlainly(const std::string& file, std::string_view text, PlainSync sync)
{
    const std::string temporary = file + ".new";
    const int descriptor = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    bool isDone = descriptor >= 0 && ::write(descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    isDone = isDone && (sync == PlainSync::No || ::fsync(descriptor) == 0);
    ::close(descriptor);
    isDone = isDone && ::rename(temporary.c_str(), file.c_str()) == 0;
    if (sync == PlainSync::Yes) {
        const std::string folder = file.substr(0, file.rfind('/'));
        const int folderDescriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        isDone = isDone && ::fsync(folderDescriptor) == 0;
        ::close(folderDescriptor);
    }
    if (!isDone) {
        throw std::system_error(errno, std::generic_category(), file);
    }
}

} // namespace quillon::bench
