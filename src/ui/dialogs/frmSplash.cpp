#include "frmSplash.h"

#include "core/CKorvane.h"
#include "ui/dialogs/UDialogButtons.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <libxml/parser.h>
#include <zlib.h>

QString frmSplash::LicenceText()
{
    return tr(
        "Korvane is free software: you can redistribute it and/or modify it under the terms of "
        "the GNU General Public License as published by the Free Software Foundation, either "
        "version 3 of the License, or (at your option) any later version.\n\n"
        "Korvane is distributed in the hope that it will be useful, but WITHOUT ANY WARRANTY; "
        "without even the implied warranty of MERCHANTABILITY or FITNESS FOR A PARTICULAR "
        "PURPOSE. See the GNU General Public License for more details.\n\n"
        "Qt is used under the GNU Lesser General Public License version 3, zlib under the zlib "
        "licence and libxml2 under the MIT licence.");
}

namespace {

// libxml2 reports its version as one number, 21004 for 2.10.4.
QString libxml2Version()
{
    const int number = QByteArray(xmlParserVersion).toInt();
    return QStringLiteral("%1.%2.%3").arg(number / 10000).arg(number / 100 % 100).arg(number % 100);
}

} // namespace

frmSplash::frmSplash()
    : QDialog(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), m_lblStatus(new QLabel(this))
{
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(tr("About Korvane"));
    auto* title = new QLabel(CKorvane::Name(), this);
    title->setObjectName(QStringLiteral("lblTitle"));
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 2.4);
    big.setBold(true);
    title->setFont(big);
    auto* version = new QLabel(tr("Version %1").arg(QStringLiteral(KORVANE_VERSION_STRING)), this);
    version->setObjectName(QStringLiteral("lblVersion"));
    auto* purpose = new QLabel(tr("Maps and counters for board games played by mail"), this);
    m_lblStatus->setObjectName(QStringLiteral("lblStatus"));
    m_lblStatus->setTextFormat(Qt::PlainText);
    m_lblStatus->setMinimumWidth(fontMetrics().averageCharWidth() * 50);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->addWidget(title);
    layout->addWidget(version);
    layout->addWidget(purpose);
    layout->addSpacing(fontMetrics().height());
    layout->addWidget(m_lblStatus);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

void frmSplash::buildAboutPart()
{
    m_aboutPart = new QWidget(this);
    m_txtLicence = new QPlainTextEdit(m_aboutPart);
    auto* libraries = new QLabel(
        tr("Built with %1.").arg(LibraryVersions().join(QStringLiteral(", "))), m_aboutPart);
    libraries->setObjectName(QStringLiteral("lblLibraries"));
    libraries->setWordWrap(true);
    m_txtLicence->setObjectName(QStringLiteral("txtLicence"));
    m_txtLicence->setPlainText(LicenceText());
    m_txtLicence->setReadOnly(true);
    m_txtLicence->setMinimumHeight(fontMetrics().height() * 8);
    auto* aboutLayout = new QVBoxLayout(m_aboutPart);
    aboutLayout->setContentsMargins(0, 0, 0, 0);
    aboutLayout->addWidget(libraries);
    aboutLayout->addWidget(m_txtLicence, 1);
    auto* buttons = new UDialogButtons(this);
    // The about box has nothing to cancel: OK (or Escape) closes it.
    for (QAbstractButton* button : buttons->buttons()) {
        if (button != buttons->Ok())
            button->hide();
    }
    aboutLayout->addWidget(buttons);

    static_cast<QVBoxLayout*>(layout())->addWidget(m_aboutPart, 1);
}

void frmSplash::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

QStringList frmSplash::LibraryVersions()
{
    return {QStringLiteral("Qt ") + QLatin1String(qVersion()),
            QStringLiteral("zlib ") + QLatin1String(zlibVersion()),
            QStringLiteral("libxml2 ") + libxml2Version()};
}

void frmSplash::Show()
{
    show();
    raise();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_painted.start();
}

void frmSplash::UpdateStatus(const QString& text, float)
{
    m_lblStatus->setText(text);
    // Painted at most every 40 ms: a quick start is not slowed by repainting
    // lines nobody could read, and a long one still shows each step.
    if (isVisible() && (!m_painted.isValid() || m_painted.elapsed() >= 40)) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        m_painted.start();
    }
}

void frmSplash::Display()
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    m_lblStatus->hide();
    if (!m_aboutPart)
        buildAboutPart();
    m_aboutPart->show();
    exec();
}
