// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/help/About.h"

#include "host/icons/Icons.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(About)
};

} // namespace

void ShowAbout(QWidget* parent)
{
    constexpr int kIcon = 64; // pixels
    auto* box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName(QStringLiteral("about"));
    box->setWindowTitle(Texts::tr("About znworkbench"));
    box->setIconPixmap(ApplicationIcon().pixmap(kIcon));
    box->setText(QStringLiteral("<b>znworkbench " ZN_VERSION "</b>"));
    box->setInformativeText(
        Texts::tr("Edits SQL scripts. It is the example host of the editor component "
                  "ZNCoreEditor.\n\nOver Qt %1. Licensed under the GNU General Public License, "
                  "version 3 or later.")
            .arg(QLatin1String(qVersion())));
    box->setStandardButtons(QMessageBox::Close);
    box->open();
}
