// Opens all windows of the program in all fonts and palettes that it is given and tells what is wrong with how they
// look: looks --help

#include "tests/looks/inspection.h"
#include "tests/looks/palettes.h"
#include "tests/looks/tour.h"
#include "ui/widgets/quillon_style.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLocale>
#include <QLoggingCategory>
#include <QStyle>
#include <QTemporaryFile>

#include <cstdio>
#include <exception>
#include <iostream>

namespace {

using quillon::test::Findings;

struct Wishes
{
    QStringList scale;
    QStringList fonts;
    QStringList palettes;
    QSize screen;
    QString pictures; ///< folder; none are taken where it is empty
};

const QString kDesktop = QStringLiteral("desktop"); ///< style and palette as the desktop gives them

Wishes ReadWishes(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOptions({
        {QStringLiteral("scale"), QStringLiteral("Scale of the screen."), QStringLiteral("FACTOR"),
         QStringLiteral("1")},
        {QStringLiteral("screen"), QStringLiteral("Size of the screen in points."), QStringLiteral("WIDTHxHEIGHT"),
         QStringLiteral("1920x1200")},
        {QStringLiteral("fonts"), QStringLiteral("Sizes in points."), QStringLiteral("SIZE,..."), QStringLiteral("10")},
        {QStringLiteral("palettes"), QStringLiteral("light, dark, darker, white, black; desktop leaves all as it is."),
         QStringLiteral("NAME,..."), QStringLiteral("light")},
        {QStringLiteral("pictures"), QStringLiteral("Leaves pictures of all windows there."), QStringLiteral("FOLDER")},
    });
    parser.addHelpOption();
    if (!parser.parse(arguments) || parser.isSet(QStringLiteral("help"))) {
        std::cout << parser.errorText().toStdString() << '\n' << parser.helpText().toStdString();
        std::exit(parser.errorText().isEmpty() ? 0 : 2);
    }
    const QStringList screen = parser.value(QStringLiteral("screen")).split(u'x');
    return {{parser.value(QStringLiteral("scale"))},
            parser.value(QStringLiteral("fonts")).split(u','),
            parser.value(QStringLiteral("palettes")).split(u','),
            {screen.value(0).toInt(), screen.value(1).toInt()},
            parser.value(QStringLiteral("pictures"))};
}

/// A screen that nobody sees. Its size is told in pixels, of which there are more to a point at a larger scale.
void SetUpScreen(const Wishes& wishes, QTemporaryFile& settings)
{
    const double scale = wishes.scale.first().toDouble();
    qputenv("QT_SCALE_FACTOR", wishes.scale.first().toLatin1());
    qputenv("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough");
    if (wishes.palettes.contains(kDesktop) || !settings.open()) {
        return;
    }
    settings.write(QStringLiteral(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": %1, "height": %2,
                                      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                       .arg(qRound(wishes.screen.width() * scale))
                       .arg(qRound(wishes.screen.height() * scale))
                       .toUtf8());
    settings.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + settings.fileName().toUtf8());
}

/// One font and one palette: the whole tour. @return the number of findings
class Inspector
{
public:
    explicit Inspector(Wishes wishes)
        : m_wishes(std::move(wishes))
    {
    }

    std::size_t Run()
    {
        for (const QString& font : m_wishes.fonts) {
            for (const QString& palette : m_wishes.palettes) {
                Dress(font, palette);
                quillon::test::Tour([this](const std::string& view, QWidget& window) { Look(view, window); }).Run();
            }
        }
        return m_findings;
    }

    [[nodiscard]] std::size_t Views() const { return m_views; }

private:
    void Dress(const QString& points, const QString& palette)
    {
        m_name = QStringLiteral("scale-%1_%2pt_%3").arg(m_wishes.scale.first(), points, palette);
        QFont font = QApplication::font();
        font.setPointSizeF(points.toDouble());
        QApplication::setFont(font);
        if (auto colors = quillon::test::FindPalette(palette)) {
            // As the application does with what the desktop hands over.
            QApplication::style()->polish(*colors);
            QApplication::setPalette(*colors);
        }
    }

    void Look(const std::string& view, QWidget& window)
    {
        ++m_views;
        if (!m_wishes.pictures.isEmpty()) {
            const QDir folder(m_wishes.pictures);
            folder.mkpath(m_name);
            window.grab().save(folder.filePath(m_name + u'/' + QString::fromStdString(view) + QStringLiteral(".png")));
        }
        for (const std::string& finding : quillon::test::Inspect(window)) {
            std::cout << m_name.toStdString() << ' ' << view << ": " << finding << '\n';
            ++m_findings;
        }
    }

    Wishes m_wishes;
    QString m_name;
    std::size_t m_findings = 0;
    std::size_t m_views = 0;
};

} // namespace

int main(int argc, char* argv[])
{
    const Wishes wishes = ReadWishes(QStringList(argv, argv + argc));
    QTemporaryFile settings;
    SetUpScreen(wishes, settings);
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (!wishes.palettes.contains(kDesktop)) {
        QApplication::setStyle(QStringLiteral("fusion"));
    }
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
    quillon::ui::QuillonStyle::Install(application);
    Inspector inspector(wishes);
    const std::size_t findings = inspector.Run();
    std::cout << inspector.Views() << " views, " << findings << " findings\n";
    return findings == 0 ? 0 : 1;
}
