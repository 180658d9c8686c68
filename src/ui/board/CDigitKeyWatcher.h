#pragma once

#include <QObject>
#include <QString>

#include <optional>

class QKeyEvent;

// Tells the platform helper of every digit key pressed or released anywhere
// in the program (whichever window has the focus), so that the board can ask
// which digit is held when a stack is pressed. Forgets every key when the
// program loses the focus, since the release would go elsewhere.
//
// A digit key is the key in a digit's place on the top row, whatever the
// keyboard layout puts on it (a French keyboard gives & é " ' ( - è _ ç à
// there unshifted), or a digit of the number pad. The place is read from
// the key's native scan code on the platforms listed in topRowDigit; where
// the platform gives none, the key's digit character decides.
class CDigitKeyWatcher : public QObject
{
public:
    // Reads the native codes of the platform the program runs on.
    explicit CDigitKeyWatcher(QObject* parent = nullptr);
    // Reads the native codes of platform (a Qt platform name: "xcb", ...).
    CDigitKeyWatcher(QObject* parent, const QString& platform);

    struct DigitKey
    {
        int QtKey; // Qt::Key_0 ... Qt::Key_9
        bool Keypad;
    };
    // The digit key that event is about, if any.
    static std::optional<DigitKey> DigitOf(const QKeyEvent& event, const QString& platform);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The digit (0 to 9) of the top-row key with this native scan code, -1
    // for another key, nullopt when the platform's codes are not known here.
    static std::optional<int> topRowDigit(quint32 scanCode, const QString& platform);

    QString m_platform;
};
