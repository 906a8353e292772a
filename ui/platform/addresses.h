#pragma once

#include <QStringView>

namespace quillon::ui {

/// Where the product and its maker are reached.
inline constexpr QStringView kProductPage = u"https://quillon.example/";
inline constexpr QStringView kMakerPage = u"https://tarvel.example/";
inline constexpr QStringView kMakerMail = u"quillon@tarvel.example";

} // namespace quillon::ui
