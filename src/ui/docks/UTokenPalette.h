#pragma once

#include <QDockWidget>
#include <QString>

class QToolBox;

// The active module's counters, one page per category, ready to be dragged
// onto the board. A drag carries the token's id under the MIME type
// "application/x-korvane-token". It does not listen to the event hub: the
// main window, which does, rebuilds it when another module comes.
class UTokenPalette : public QDockWidget
{
    Q_OBJECT

public:
    static constexpr const char* MimeType = "application/x-korvane-token";

    explicit UTokenPalette(QWidget* parent = nullptr);

    // Reads the active context's tokens again.
    void Rebuild();
    // The token being dragged from the palette, "" when none; the drag state
    // itself is the drag-and-drop manager's.
    QString DragTokenId() const;
    // Drags a token to wherever the user drops it; returns when the drag ends.
    void DragToken(const QString& tokenId);

private:
    QToolBox* m_pages;
};
