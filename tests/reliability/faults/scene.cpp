#include "tests/reliability/faults/scene.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fcntl.h>
#include <fstream>
#include <system_error>
#include <unistd.h>

namespace quillon::reliability {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongComment = 100'000;

std::string WithCrLf(const std::string& text)
{
    std::string result;
    for (const char character : text) {
        result += character == '\n' ? "\r\n" : std::string(1, character);
    }
    return result;
}

std::string InOtherCase(std::string path)
{
    const auto begin = path.begin() + static_cast<std::ptrdiff_t>(path.rfind('/') + 1);
    std::transform(begin, path.end(), begin, [](unsigned char character) {
        return static_cast<char>(std::isupper(character) != 0 ? std::tolower(character) : std::toupper(character));
    });
    return path;
}

/// Files that no operation changes, one with a name that looks like a temporary file's but is none.
Tree Bystanders()
{
    return {{"Antennas/Other.DAT", {false, "[Z]\nGainType=dBi\n"}},
            {"Antennas/.notes.txt.tmp", {false, "a person's"}},
            {"Coax/Cables.DAT", {false, "[RG-8X]\nLoss1=0.3\n"}},
            {".QuillonSystems.dat.bak", {false, "a person's"}}};
}

struct Texts
{
    std::string before;
    std::string after;
};

Texts TextsOf(const Operation& operation, State state)
{
    switch (state) {
    case State::Missing:
    case State::Empty:
        return {"", operation.afterNothing};
    case State::CrLf:
        return {WithCrLf(operation.before), WithCrLf(operation.after)};
    case State::ReadOnly:
        return {operation.before, operation.before};
    case State::Long: {
        const std::string comment = ";" + std::string(kLongComment, 'x') + "\n";
        return {comment + operation.before, comment + operation.after};
    }
    default:
        return {operation.before, operation.after};
    }
}

void Put(const fs::path& path, const Node& node)
{
    fs::create_directories(path.parent_path());
    if (node.isLink) {
        fs::create_symlink(node.text, path);
        return;
    }
    std::ofstream file(path, std::ios::binary);
    file << node.text;
    if (!file.flush()) {
        throw std::system_error(errno, std::generic_category(), path.string());
    }
}

std::string ReadText(const fs::path& path)
{
    std::string text;
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    std::array<char, 16384> buffer{};
    for (ssize_t count = 1; count > 0;) {
        count = ::read(descriptor, buffer.data(), buffer.size());
        text.append(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    ::close(descriptor);
    return text;
}

void ReadInto(Tree& tree, const fs::path& folder, const std::string& prefix)
{
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = prefix + entry.path().filename().string();
        if (entry.is_symlink()) {
            tree[name] = {true, fs::read_symlink(entry.path()).string()};
        } else if (entry.is_directory()) {
            ReadInto(tree, entry.path(), name + "/");
        } else {
            tree[name] = {false, ReadText(entry.path())};
        }
    }
}

} // namespace

const std::vector<StateName>& States()
{
    static const std::vector<StateName> states{{State::Missing, "missing"},
                                               {State::Empty, "empty"},
                                               {State::Normal, "normal"},
                                               {State::CrLf, "crlf"},
                                               {State::Link, "link"},
                                               {State::ReadOnly, "read-only"},
                                               {State::OtherSpelling, "spelling"},
                                               {State::LinkToLink, "links"},
                                               {State::Long, "long"}};
    return states;
}

Scene MakeScene(const Operation& operation, State state)
{
    const Texts texts = TextsOf(operation, state);
    Tree before = Bystanders();
    if (operation.file != "Antennas/Acme.DAT") {
        before["Antennas/Acme.DAT"] = {false, OperationOf("add-maker").before};
    }
    const bool isMissing = state == State::Missing;
    Scene scene{before, {}, operation.file, true, state == State::ReadOnly, isMissing && operation.createsFile};
    if (state == State::Link || state == State::LinkToLink) {
        scene.file = "Kept/" + fs::path(operation.file).filename().string();
        const std::string up = operation.file.find('/') == std::string::npos ? "" : "../";
        const bool isDirect = state == State::Link;
        scene.before[operation.file] = {true, up + (isDirect ? scene.file : "Kept/second")};
        if (!isDirect) {
            scene.before["Kept/second"] = {true, fs::path(scene.file).filename()};
        }
    } else if (state == State::OtherSpelling) {
        scene.file = InOtherCase(operation.file);
    }
    scene.after = scene.before;
    if (!isMissing) {
        scene.before[scene.file] = {false, texts.before};
    }
    if (!isMissing || operation.createsFile) {
        scene.after[scene.file] = {false, texts.after};
    }
    const bool isNothing = isMissing || state == State::Empty;
    const bool isWritable = !scene.isReadOnly || operation.before == operation.after;
    scene.isDone = (!isMissing || operation.createsFile) && (isNothing || !operation.isRefused) && isWritable;
    return scene;
}

Tree ReadTree(const fs::path& folder)
{
    Tree tree;
    ReadInto(tree, folder, "");
    return tree;
}

void LayOut(const fs::path& folder, const Tree& wanted)
{
    fs::create_directories(folder);
    const Tree found = ReadTree(folder);
    for (const auto& [name, node] : found) {
        const auto other = wanted.find(name);
        if (other == wanted.end() || other->second != node) {
            fs::remove(folder / name);
        }
    }
    for (const auto& [name, node] : wanted) {
        const auto other = found.find(name);
        if (other == found.end() || other->second != node) {
            Put(folder / name, node);
        }
    }
}

} // namespace quillon::reliability
