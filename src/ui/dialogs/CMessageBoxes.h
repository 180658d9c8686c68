#pragma once

#include "core/FMessageBox.h"

#include <QPointer>

class QWidget;

// The program's message boxes, shown over the main window.
class CMessageBoxes : public FMessageBox
{
public:
    explicit CMessageBoxes(QWidget* parent) : m_parent(parent) {}

    Answer Question(const QString& title, const QString& text, Buttons buttons, Icon icon,
                    Answer defaultButton) override;
    void Information(const QString& title, const QString& text, Icon icon) override;

private:
    QPointer<QWidget> m_parent;
};
