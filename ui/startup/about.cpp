#include "ui/startup/about.h"

#include "ui/platform/addresses.h"
#include "ui/startup/link_label.h"
#include "ui/startup/notice_label.h"
#include "ui/startup/notices.h"
#include "ui/startup/polar_picture.h"
#include "ui/widgets/button_keys.h"
#include "ui/widgets/card.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/scrolled_window.h"

#include <QGridLayout>
#include <QPushButton>

#include <utility>

namespace quillon::ui {

namespace {

using Tone = QuietLabel::Tone;

// In base units.
constexpr int kPictureSide = 19;
constexpr int kMargin = 3;
constexpr int kGap = 4;
constexpr int kWindowFrame = 4;

/// Room for the lines as they are on most systems.
constexpr NoticeLabel::Column kColumn{78, kMargin + kPictureSide + kGap + kMargin + kWindowFrame};
constexpr double kVersionFactor = 1.15;

} // namespace

About::About(ProgramInfo program, SystemVersionCall ask, Shell& shell, QWidget* parent)
    : QDialog(parent)
    , m_program(std::move(program))
    , m_ask(std::move(ask))
    , m_shell(shell)
    , m_version(new NoticeLabel(Tone::Normal, kColumn, this))
    , m_appInfo(new NoticeLabel(Tone::Normal, kColumn, this))
    , m_path(new QuietLabel(Tone::Normal, 1.0, this))
    , m_mail(new LinkLabel(this))
    , m_comments(new NoticeLabel(Tone::Normal, kColumn, this))
    , m_copyright(new QuietLabel(Tone::Quiet, 1.0, this))
    , m_sendMail(new QPushButton(tr("&Send E-Mail"), this))
    , m_close(new QPushButton(tr("&Close"), this))
{
    NameControls();
    m_mail->setText(kMakerMail.toString());
    m_comments->setText(tr("Comments, corrections and figures for the catalogues are welcome."));
    m_copyright->setText(kMakersNotice.toString());
    LayOut();

    connect(m_sendMail, &QPushButton::clicked, this, &About::cmdSendEMail_Click);
    connect(m_mail, &LinkLabel::Clicked, this, &About::lblEMail_Click);
    connect(m_close, &QPushButton::clicked, this, &About::reject);
}

void About::NameControls()
{
    setObjectName(QStringLiteral("About"));
    setWindowTitle(tr("About %1").arg(m_program.title));
    m_version->setObjectName(QStringLiteral("lblVersion"));
    m_appInfo->setObjectName(QStringLiteral("lblAppInfo"));
    m_path->setObjectName(QStringLiteral("lblPath"));
    m_mail->setObjectName(QStringLiteral("lblEMail"));
    m_comments->setObjectName(QStringLiteral("lblComents"));
    m_copyright->setObjectName(QStringLiteral("lblCopyright"));
    m_sendMail->setObjectName(QStringLiteral("cmdSendEMail"));
    m_close->setObjectName(QStringLiteral("cmdClose"));
}

void About::LayOut()
{
    const int unit = BaseUnit();
    m_path->SetElides(true, Qt::ElideMiddle);
    m_path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    auto* lines = new QVBoxLayout;
    lines->setSpacing(2 * unit);
    for (QLabel* line : {m_version, m_appInfo, static_cast<QLabel*>(m_path)}) {
        lines->addWidget(line);
    }
    lines->addWidget(m_mail, 0, Qt::AlignLeft);
    lines->addWidget(m_comments);
    lines->addWidget(m_copyright);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kMargin * unit, kMargin * unit, kMargin * unit, kMargin * unit);
    grid->setHorizontalSpacing(kGap * unit);
    grid->setVerticalSpacing(3 * unit);
    grid->addWidget(new PolarPicture(kPictureSide, this), 0, 0, Qt::AlignTop);
    grid->addLayout(lines, 0, 1);
    grid->addWidget(new Hairline(this), 1, 0, 1, 2);
    grid->addLayout(ButtonRow({m_sendMail}, {m_close}), 2, 0, 1, 2);
    grid->setSizeConstraint(QLayout::SetFixedSize);

    setTabOrder(m_mail, m_sendMail);
    setTabOrder(m_sendMail, m_close);
    ScrollWhatHasNoRoom(*this);
}

void About::Open()
{
    Prepare();
    exec();
}

void About::Prepare()
{
    m_system = FillSystemInfo(m_ask);
    m_version->setFont(ScaledFont(kVersionFactor, QFont::DemiBold));
    m_version->setText(VersionLine(m_program, m_system));
    m_appInfo->setText(SystemLine(m_system));
    m_path->setText(m_program.path);
    m_close->setFocus();
}

void About::cmdSendEMail_Click()
{
    m_shell.Open(MailAddress(m_program, m_system));
}

void About::lblEMail_Click()
{
    m_shell.Open(CommentsAddress(m_program, m_system));
}

void About::keyPressEvent(QKeyEvent* event)
{
    if (!PressFocusedButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace quillon::ui
