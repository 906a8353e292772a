#include "ui/platform/shell.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <array>

namespace quillon::ui {

namespace {

/// The calculators of the desktops, the one to be preferred first.
constexpr std::array kCalculators{"gnome-calculator", "kcalc", "galculator", "qalculate-gtk", "mate-calc", "xcalc"};

} // namespace

void DesktopShell::StartCalculator()
{
    for (const char* name : kCalculators) {
        const QString program = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (!program.isEmpty()) {
            QProcess::startDetached(program, {});
            return;
        }
    }
}

void DesktopShell::Open(const QUrl& address)
{
    // Not through QDesktopServices, which takes the command line from the BROWSER variable where there is one.
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (!program.isEmpty()) {
        QProcess::startDetached(program, {QString::fromLatin1(address.toEncoded())}, QDir::rootPath());
    }
}

} // namespace quillon::ui
