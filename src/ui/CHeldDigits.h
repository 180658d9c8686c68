#pragma once

#include <QObject>

#include <array>

// Which digit keys are held down, seen from every key press and release the
// application delivers (whichever window has the focus), so that the board
// can tell "3 held while pressing a stack". Forgets everything when the
// application loses the focus, since the release would go elsewhere.
class CHeldDigits : public QObject
{
public:
    explicit CHeldDigits(QObject* parent = nullptr);

    void KeyDown(int qtKey, bool keypad);
    void KeyUp(int qtKey, bool keypad);
    void ReleaseAllKeys() { m_held.fill(false); }
    // 1 to 9 for a held digit, 10 for a held zero, 0 for none; the main
    // row's key before the keypad's, and the lower digit first, zero last.
    int GetPressedNumeric() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static int slot(int qtKey, bool keypad);

    std::array<bool, 20> m_held{};
};
