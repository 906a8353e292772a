#include "fuzz/on_disk.h"

#include "fuzz/expect.h"
#include "fuzz/profile_model.h"
#include "store/catalogue.h"
#include "store/profile_strings.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace quillon::fuzz {
namespace {

namespace fs = std::filesystem;

/// A folder that goes with the run.
class Folder
{
public:
    Folder()
    {
        std::string name = (fs::temp_directory_path() / "quillon-fuzz-XXXXXX").string();
        Expect(::mkdtemp(name.data()) != nullptr, "a temporary folder is made");
        m_path = name;
        fs::create_directories(m_path / "Antennas");
    }

    ~Folder()
    {
        std::error_code error;
        fs::remove_all(m_path, error);
    }

    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] const fs::path& Path() const noexcept { return m_path; }

private:
    fs::path m_path;
};

std::string TextOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool IsOneLine(const std::string& text)
{
    return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
}

} // namespace

void RunOnDisk(Input input)
{
    const Folder folder;
    const fs::path asked = folder.Path() / "Antennas" / "MAKER.DAT";
    const fs::path standing = folder.Path() / "Antennas" / "Maker.dat";
    const std::string text = input.FileText();
    std::ofstream(standing, std::ios::binary) << text;
    if (text.starts_with(';')) {
        fs::create_symlink("Maker.dat", asked);
    }
    ProfileModel model(text);
    store::ProfileStore store;
    while (!input.IsEmpty()) {
        const std::string section(input.Field());
        const std::string key(input.Field());
        const std::string value(input.Record());
        const bool isOneLine = IsOneLine(section) && IsOneLine(key) && IsOneLine(value);
        Expect(WritePrivateProfileString(store, section, key, value, asked) == isOneLine, "a write succeeds");
        if (isOneLine) {
            model.Set(section, key, value);
        }
        Expect(TextOf(standing) == model.Text(), "every byte is on the disk");
    }
    const store::Catalogue catalogue(store::ProgramFolder(folder.Path() / "Quillon"));
    Expect(!catalogue.LoadAntennaMakers().empty(), "the maker is listed");
    static_cast<void>(catalogue.LoadAntennas("new")); // makes its file, as given
    Expect(fs::exists(folder.Path() / "Antennas" / "new.DAT"), "a file is made for a maker that is asked for");
}

} // namespace quillon::fuzz
