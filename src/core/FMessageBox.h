#pragma once

#include <QString>

// The program's message boxes as the engine sees them. The widget library
// shows real boxes; tests and the command-line tool answer from a script.
class FMessageBox
{
public:
    enum class Icon
    {
        None,
        Information,
        Question,
        Exclamation,
        Critical
    };

    enum class Buttons
    {
        YesNo,
        YesNoCancel
    };

    enum class Answer
    {
        Yes,
        No,
        Cancel
    };

    virtual ~FMessageBox() = default;

    // Asks a question and returns the button chosen; a box closed without a
    // choice answers Cancel when offered, else No.
    virtual Answer Question(const QString& title, const QString& text, Buttons buttons, Icon icon,
                            Answer defaultButton) = 0;
    // Tells the user something; returns when the box is closed.
    virtual void Information(const QString& title, const QString& text, Icon icon) = 0;

    // The installed root's message box; null without a root, GUI or box.
    static FMessageBox* Current();
    // Tells text in a box titled with the program's name; nothing without one.
    static void Tell(const QString& text, Icon icon);
};
