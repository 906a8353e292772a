#include "tests/reliability/monkey_outside.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

namespace quillon::test {

namespace {

namespace fs = std::filesystem;

std::string Bytes(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// In place and not as a whole, as many programs write.
void Write(const fs::path& file, const std::string& bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

void Remove(const fs::path& file)
{
    std::error_code error;
    fs::remove_all(file, error);
}

/// Other digits in some places: gains, losses, lengths and keys.
void ChangeDigits(const fs::path& file, std::mt19937& random)
{
    std::string bytes = Bytes(file);
    for (char& character : bytes) {
        if (character >= '0' && character <= '9' && random() % 20 == 0) {
            character = static_cast<char>('0' + random() % 10);
        }
    }
    Write(file, bytes);
}

void Scramble(const fs::path& file, std::mt19937& random)
{
    std::string bytes(random() % 3000, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    Write(file, bytes);
}

} // namespace

OutsideProgram::OutsideProgram(fs::path shipped, fs::path folder)
    : m_shipped(std::move(shipped))
    , m_folder(std::move(folder))
{
}

std::string OutsideProgram::AnyFile(std::mt19937& random) const
{
    std::vector<std::string> files{"QuillonSystems.dat", "Antennas/ANTENNAS.ZEP", "Help/Quillon.hlp"};
    for (const char* folder : {"Antennas", "Coax"}) {
        for (const auto& entry : fs::directory_iterator(m_folder / folder)) {
            files.push_back(std::string(folder) + "/" + entry.path().filename().string());
        }
        for (const auto& entry : fs::directory_iterator(m_shipped / folder)) {
            files.push_back(std::string(folder) + "/" + entry.path().filename().string());
        }
    }
    std::sort(files.begin(), files.end());
    return files.at(random() % files.size());
}

std::string OutsideProgram::Act(std::mt19937& random)
{
    const std::string name = AnyFile(random);
    const fs::path file = m_folder / name;
    const unsigned kind = random() % 16;
    const bool isThere = fs::is_regular_file(file);
    if (isThere && kind < 4) {
        ChangeDigits(file, random);
        return "changes digits of " + name;
    }
    if (isThere && kind < 6) {
        fs::permissions(file, random() % 2 == 0 ? fs::perms::none : fs::perms::owner_read);
        return "takes rights from " + name;
    }
    switch (kind) {
    case 6:
    case 7:
        Remove(file);
        return "removes " + name;
    case 8:
        Remove(file);
        Write(file, {});
        return "empties " + name;
    case 9:
        Remove(file);
        fs::create_directory(file);
        return "puts a folder in the place of " + name;
    case 10:
        Remove(file);
        Scramble(file, random);
        return "scrambles " + name;
    default:
        Remove(file);
        if (fs::is_regular_file(m_shipped / name)) {
            Write(file, Bytes(m_shipped / name));
        }
        return "restores " + name;
    }
}

} // namespace quillon::test
