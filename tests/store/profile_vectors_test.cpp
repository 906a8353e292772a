// Recorded scripts of reads and writes: what a program that keeps its settings in private profiles gets to see.

#include "store/ini_manager.h"
#include "store/profile_strings.h"
#include "store/read_write.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quillon::store {
namespace {

using nlohmann::json;

constexpr const char* kFileName = "VectorsSystems.dat";

/// In the recorded texts each character up to U+00FF stands for one byte.
std::string Bytes(const std::string& utf8)
{
    std::string bytes;
    for (std::size_t place = 0; place < utf8.size(); ++place) {
        const auto lead = static_cast<unsigned char>(utf8[place]);
        if (lead < 0x80) {
            bytes.push_back(utf8[place]);
            continue;
        }
        const auto next = static_cast<unsigned char>(utf8[++place]);
        bytes.push_back(static_cast<char>(((lead & 0x03U) << 6U) | (next & 0x3FU)));
    }
    return bytes;
}

std::optional<std::string> Text(const json& value)
{
    return value.is_null() ? std::nullopt : std::optional(Bytes(value.get<std::string>()));
}

std::vector<std::string> Texts(const json& values)
{
    std::vector<std::string> texts;
    for (const json& value : values) {
        texts.push_back(Bytes(value.get<std::string>()));
    }
    return texts;
}

std::string Strip(const std::string& text)
{
    const std::size_t first = std::min(text.find_first_not_of(" \t"), text.size());
    return text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

struct NormalForm
{
    bool exists = false;
    std::vector<std::string> entries;
    std::vector<std::string> comments;
};

std::string NormalEntry(const std::string& line)
{
    const std::size_t close = line.rfind(']');
    if (line.front() == '[' && close != std::string::npos) {
        return "[" + Strip(line.substr(1, close - 1)) + "]" + Strip(line.substr(close + 1));
    }
    const std::size_t equals = line.find('=');
    return equals == std::string::npos ? line : Strip(line.substr(0, equals)) + "=" + Strip(line.substr(equals + 1));
}

/// The recorder rewrote whole files: blank lines, blanks around names and line ends are not compared.
NormalForm Normalise(const std::optional<std::string>& file)
{
    NormalForm form;
    form.exists = file.has_value();
    std::string text = file.value_or("");
    std::replace(text.begin(), text.end(), '\r', '\n');
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string line = Strip(text.substr(begin, end - begin));
        begin = end + 1;
        if (line.empty()) {
            continue;
        }
        if (line.front() == ';') {
            form.comments.push_back(line);
        } else {
            form.entries.push_back(NormalEntry(line));
        }
    }
    return form;
}

/// What one operation gave otherwise than recorded.
using Differences = std::vector<std::string>;

class Script
{
public:
    explicit Script(const json& script) { PutFile(script["initial"]); }

    Differences Run(const json& op)
    {
        m_differences.clear();
        if (op["op"] == "get") {
            Get(op);
            Derived(op);
        } else {
            Write(op);
        }
        return m_differences;
    }

    /// Puts the recorded file in place, from which the script goes on.
    void PutFile(const json& file)
    {
        std::filesystem::remove(m_file);
        if (const std::optional<std::string> bytes = Text(file)) {
            m_folder.Put(kFileName, *bytes);
        }
    }

private:
    template <class T>
    void Compare(const char* what, const T& actual, const T& expected)
    {
        if (actual != expected) {
            m_differences.push_back(std::string(what) + " is " + ::testing::PrintToString(actual));
        }
    }

    void Get(const json& op)
    {
        const bool isConflict = op["grade"] == "conflict";
        const auto count = op[isConflict ? "expected_count" : "count"].get<std::size_t>();
        const std::string expected = Bytes(op[isConflict ? "expected_buffer" : "buffer"].get<std::string>());
        const bool isList = op["section"].is_null() || op["key"].is_null();
        std::string buffer(op["size"].get<std::size_t>(), '#');
        const auto section = Text(op["section"]);
        const auto key = Text(op["key"]);
        const auto defaultValue = Text(op["default"]);

        Compare("count", GetPrivateProfileString(m_store, section, key, defaultValue, buffer, m_file), count);
        const std::size_t compared = isList ? count : count + (buffer.empty() ? 0U : 1U);
        Compare("buffer", buffer.substr(0, compared), expected.substr(0, compared));
    }

    void Derived(const json& op)
    {
        if (!op.contains("derived")) {
            return;
        }
        const auto section = Text(op["section"]).value_or("");
        const auto key = Text(op["key"]).value_or("");
        for (const auto& [wrapper, answer] : op["derived"].items()) {
            if (wrapper == "GetValue") {
                Compare("GetValue", GetValue(section, key, *Text(op["default"])), Bytes(answer.get<std::string>()));
            } else if (wrapper == "IniRead") {
                m_readWrite.DataFileCheck("Systems");
                Compare("IniRead", m_readWrite.IniRead(section, key), Bytes(answer.get<std::string>()));
            } else if (wrapper == "GetAllSections") {
                Compare("GetAllSections", INIManager(m_store).GetAllSections(m_file), Texts(answer));
            } else {
                Compare("GetAllKeys", INIManager(m_store).GetAllKeys(section, m_file), Texts(answer));
            }
        }
    }

    /// The manager is bound to a file that exists, else it would create it.
    std::string GetValue(const std::string& section, const std::string& key, const std::string& defaultValue)
    {
        INIManager manager(m_store);
        if (std::filesystem::exists(m_file)) {
            manager.FileName(m_file);
        }
        return manager.GetValue(section, key, defaultValue);
    }

    void Write(const json& op)
    {
        const auto section = Text(op["section"]);
        const auto key = Text(op["key"]);
        const auto value = Text(op["value"]);
        Compare("result", WritePrivateProfileString(m_store, section, key, value, m_file), op["result"].get<bool>());
        const NormalForm file = Normalise(m_folder.Get(kFileName));
        const NormalForm expected = Normalise(Text(op["file"]));
        Compare("existence", file.exists, expected.exists);
        Compare("entries", file.entries, expected.entries);
        if (key) { // with a whole section its comments go
            Compare("comments", file.comments, expected.comments);
        }
    }

    support::TempFolder m_folder;
    std::string m_file = (m_folder / kFileName).string();
    ProfileStore m_store;
    support::RecordingNotifier m_notifier;
    ReadWrite m_readWrite{ProgramFolder(m_folder / "Vectors"), m_store, m_notifier};
    Differences m_differences;
};

/// Recorded by the way, where programs may differ. Here they do so on purpose.
const std::set<std::string> kOwnCorners{
    // what stands behind a header's bracket, a header without name and a second empty key stay in the file
    "p0000 4", "p0190 3", "p0226 3", "p0300 4", "p0348 4", "p0356 3",
    // a list that fits the buffer to the last byte is delivered whole
    "p0102 4", "p0102 8", "p0192 9", "p0372 0",
    // a default of nothing but blanks is empty
    "p0060 10", "p0104 10"};

TEST(ProfileVectors, HoldInEveryScript)
{
    std::ifstream lines(QUILLON_PROFILE_VECTORS);
    std::map<std::string, int> operations;
    std::set<std::string> corners;
    for (std::string line; std::getline(lines, line);) {
        const json record = json::parse(line);
        Script script(record);
        for (std::size_t place = 0; place < record["ops"].size(); ++place) {
            const json& op = record["ops"][place];
            const std::string name = record["id"].get<std::string>() + " " + std::to_string(place);
            const Differences differences = script.Run(op);
            const bool isCorner = op["grade"] == "corner";
            ++operations[op["grade"].get<std::string>()];
            if (isCorner && !differences.empty()) {
                corners.insert(name);
            } else if (!isCorner) {
                EXPECT_EQ(differences, Differences()) << name << ": " << op.dump();
            }
            if (isCorner && op["op"] == "write") {
                script.PutFile(op["file"]);
            }
        }
    }
    EXPECT_EQ(corners, kOwnCorners);
    const std::map<std::string, int> all{{"core", 1275}, {"platform", 491}, {"conflict", 44}, {"corner", 230}};
    EXPECT_EQ(operations, all);
}

} // namespace
} // namespace quillon::store
