#include "tests/looks/palettes.h"

#include <QColor>

#include <algorithm>
#include <array>

namespace quillon::test {

namespace {

using Role = QPalette::ColorRole;

struct RoleColor
{
    Role role;
    QRgb color;
};

/// All roles from the colours that tell a palette from others; what is disabled gets a text of its own.
struct Scheme
{
    const char* name;
    QRgb window;
    QRgb windowText;
    QRgb base;
    QRgb alternateBase;
    QRgb button;
    QRgb highlight;
    QRgb highlightedText;
    QRgb link;
    QRgb toolTip;
    QRgb toolTipText;
    QRgb light;
    QRgb midlight;
    QRgb mid;
    QRgb dark;
    QRgb disabled;
};

// clang-format off
constexpr std::array kSchemes{
    //     name       window    text      base      alternate button    highlight on it     link      tip       on it     light     midlight  mid       dark      disabled
    Scheme{"light",   0xefefef, 0x000000, 0xffffff, 0xf7f7f7, 0xefefef, 0x308cc6, 0xffffff, 0x0000ff, 0xffffdc, 0x000000, 0xffffff, 0xcacaca, 0xb8b8b8, 0x9f9f9f, 0xbebebe},
    Scheme{"dark",    0x323232, 0xf0f0f0, 0x242424, 0x2b2b2b, 0x323232, 0x308cc6, 0xf0f0f0, 0x308cc6, 0xffffdc, 0x000000, 0x4b4b4b, 0x2a2a2a, 0x252525, 0x212121, 0x828282},
    Scheme{"darker",  0x3d3d3d, 0xffffff, 0x222020, 0x5c5b5a, 0x424245, 0x12608a, 0xf9f9f9, 0x0986d3, 0x3f3f36, 0xffffff, 0x979797, 0x5e5c5b, 0x4a4947, 0x302f2e, 0x808080},
    Scheme{"white",   0xffffff, 0x000000, 0xffffff, 0xffffff, 0xffffff, 0x000000, 0xffffff, 0x0000ff, 0xffffff, 0x000000, 0xffffff, 0xffffff, 0x000000, 0x000000, 0x600000},
    Scheme{"black",   0x000000, 0xffffff, 0x000000, 0x000000, 0x000000, 0x1aebff, 0x000000, 0xffff00, 0x000000, 0xffffff, 0xffffff, 0xc0c0c0, 0xffffff, 0xffffff, 0x3ff23f},
};

// clang-format on

QPalette Made(const Scheme& scheme)
{
    const std::array colors{
        RoleColor{Role::Window, scheme.window},
        RoleColor{Role::WindowText, scheme.windowText},
        RoleColor{Role::Base, scheme.base},
        RoleColor{Role::Text, scheme.windowText},
        RoleColor{Role::AlternateBase, scheme.alternateBase},
        RoleColor{Role::Button, scheme.button},
        RoleColor{Role::ButtonText, scheme.windowText},
        RoleColor{Role::BrightText, scheme.windowText},
        RoleColor{Role::Highlight, scheme.highlight},
        RoleColor{Role::HighlightedText, scheme.highlightedText},
        RoleColor{Role::Link, scheme.link},
        RoleColor{Role::LinkVisited, scheme.link},
        RoleColor{Role::ToolTipBase, scheme.toolTip},
        RoleColor{Role::ToolTipText, scheme.toolTipText},
        RoleColor{Role::Light, scheme.light},
        RoleColor{Role::Midlight, scheme.midlight},
        RoleColor{Role::Mid, scheme.mid},
        RoleColor{Role::Dark, scheme.dark},
        RoleColor{Role::Shadow, qRgb(0, 0, 0)},
    };
    QPalette palette;
    for (const RoleColor& color : colors) {
        palette.setColor(color.role, QColor(color.color));
    }
    for (const Role role : {Role::WindowText, Role::Text, Role::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(scheme.disabled));
    }
    return palette;
}

std::vector<NamedPalette> MakeAll()
{
    std::vector<NamedPalette> palettes;
    for (const Scheme& scheme : kSchemes) {
        palettes.push_back({QString::fromLatin1(scheme.name), Made(scheme)});
    }
    return palettes;
}

} // namespace

const std::vector<NamedPalette>& Palettes()
{
    static const std::vector<NamedPalette> kPalettes = MakeAll();
    return kPalettes;
}

std::optional<QPalette> FindPalette(const QString& name)
{
    const auto found = std::ranges::find(Palettes(), name, &NamedPalette::name);
    return found != Palettes().end() ? std::optional(found->palette) : std::nullopt;
}

} // namespace quillon::test
