#include "aboutdialog.h"

#include "applicationinfo.h"
#include "resourcepath.h"
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

namespace
{

QString link(const QString& caption, const QString& address, const char* scheme = "")
{
    return QStringLiteral("%1 <a href=\"%3%2\">%2</a>")
        .arg(caption, address, QLatin1String(scheme));
}

QLabel* makeLogo()
{
    auto* logo = new QLabel;
    const QIcon icon(ResourcePath(QStringLiteral("icons/skerrymoor.png")));
    logo->setPixmap(icon.pixmap(64, 64));
    logo->setAlignment(Qt::AlignTop);
    return logo;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("About Skerrymoor"));
    auto* text = new QLabel(
        QStringList{QStringLiteral("<b>%1</b>").arg(ApplicationTitle()), tr("Hollin College"),
                    link(tr("Contact:"), ContactAddress(), "mailto:"),
                    link(tr("Website:"), WebsiteAddress()), link(tr("Help:"), HelpAddress())}
            .join(QStringLiteral("<br>")));
    text->setOpenExternalLinks(true);
    text->setTextInteractionFlags(Qt::TextBrowserInteraction);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* top = new QHBoxLayout;
    top->addWidget(makeLogo());
    top->addWidget(text, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}
