#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace quillon::reliability {

/// Makes names that are out for trouble, the same ones for the same seed.
class HostileNameSource
{
public:
    explicit HostileNameSource(std::uint64_t seed)
        : m_random(seed)
    {
    }

    /// One to six pieces in a row; every thirtieth name repeats one of them until it is long.
    [[nodiscard]] std::string Next()
    {
        std::string name;
        for (std::uint64_t left = Below(6) + 1; left > 0; --left) {
            name += kPieces.at(Below(kPieces.size()));
        }
        if (Below(30) == 0) {
            const std::string piece(kPieces.at(Below(kPieces.size())));
            const std::uint64_t length = Below(20) == 0 ? 5000 : Below(300);
            while (!piece.empty() && name.size() < length) {
                name += piece;
            }
        }
        return name;
    }

private:
    [[nodiscard]] std::uint64_t Below(std::uint64_t end) { return m_random() % end; }

    static constexpr std::string_view kNul{"\0", 1};
    static constexpr std::array kPieces = std::to_array<std::string_view>({
        // What leads to another folder, or to another file of this one.
        "/",
        "\\",
        "..",
        ".",
        "../",
        "../../",
        "..\\",
        "/etc/passwd",
        "|",
        ":",
        "C:",
        "~",
        "$HOME",
        "$(id)",
        "`id`",
        "*",
        "?",
        "OUTSIDE",
        "OUTSIDE/",
        "UP",
        "../outside/canary",
        "ANTENNAS.ZEP",
        ".DAT",
        ".dat",
        ".tmp",
        ".",
        "-rf",
        "--",
        // Names of devices.
        "CON",
        "NUL",
        "AUX",
        "COM1",
        "LPT1",
        "/dev/zero",
        "/dev/full",
        "/proc/self/mem",
        // What a section, a key or a value ends with.
        "[",
        "]",
        "[]",
        "][",
        "=",
        ";",
        "#",
        "\"",
        "'",
        "\"\"",
        "\r",
        "\n",
        "\r\n",
        "\t",
        " ",
        "  ",
        kNul,
        "\x1A",
        "\x1B[2J",
        "\x7F",
        "SavedSystems",
        "System:1",
        "GainType",
        "System1AntennaBrand",
        // What is put together or formatted.
        "%",
        "%s",
        "%n",
        "%1",
        "%2",
        "%20",
        "%2F",
        "{0}",
        "\\0",
        "&",
        "&amp;",
        "<b>",
        "<img src=file:///etc/hostname>",
        // Characters that the code page has, lacks, or holds in a place of their own; and what is no character.
        "\u00E9",
        "\u20AC",
        "\u0152",
        "\u00FF",
        "\u0178",
        "\u00A0",
        "\u00AD",
        "\u0391",
        "\u6F22",
        "\U0001F4E1",
        "\u202E",
        "\u202D",
        "\u2066",
        "\u200B",
        "\u200D",
        "\uFEFF",
        "\u0301",
        "\u2028",
        "\u0085",
        "\uFFFD",
        "\uFF0F",
        "\u2215",
        "\x81",
        "\x8D",
        "\x80",
        "\x9F",
        "\xA0",
        "\xFF",
        "\xFE\xFF",
        "\xC0\xAF",
        "\xC0\x80",
        "\xED\xA0\x80",
        "\xF8",
        "\xE2\x82",
        // What does no harm, so that names are taken often.
        "A",
        "a",
        "BEAM",
        "Hy-Gain",
        "TH7DX",
        "0",
        "144",
        "M2",
        "dipole",
        "x",
        "Y",
        "z",
        "_",
        "-",
        "+",
        "(",
        ")",
        ",",
    });

    std::mt19937_64 m_random;
};

} // namespace quillon::reliability
