#include "frmProgress.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

QString frmProgress::InitialText()
{
    return tr("Please Wait...");
}

frmProgress::frmProgress(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_lblStatus(new QLabel(InitialText(), this))
{
    setObjectName(QStringLiteral("frmProgress"));
    setWindowTitle(QStringLiteral("Korvane"));
    m_lblStatus->setObjectName(QStringLiteral("lblStatus"));
    m_lblStatus->setTextFormat(Qt::PlainText);
    m_lblStatus->setAlignment(Qt::AlignCenter);
    m_lblStatus->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    m_lblStatus->setMinimumHeight(fontMetrics().height() * 3);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_lblStatus);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

void frmProgress::Load()
{
    m_lblStatus->setText(InitialText());
}

void frmProgress::Show()
{
    show();
    raise();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmProgress::Unload()
{
    hide();
    m_lblStatus->setText(InitialText());
}

void frmProgress::UpdateStatus(const QString& text, float)
{
    m_lblStatus->setText(text);
    if (isVisible())
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
