#pragma once

#include <QObject>

// Tells the platform helper of every digit key pressed or released anywhere
// in the program (whichever window has the focus), so that the board can ask
// which digit is held when a stack is pressed. Forgets every key when the
// program loses the focus, since the release would go elsewhere.
class CDigitKeyWatcher : public QObject
{
public:
    explicit CDigitKeyWatcher(QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
