#pragma once

#include "contexts/CStandardGame.h"

// A context served by one fixed module file name. Its identity, label look
// and file type are constants of the class; its token set and board still
// come from the "module.def" inside its own pack.
class CBuiltInGame : public CStandardGame
{
public:
    QString Id() const override { return m_id; }
    QString Caption() const override { return m_caption; }
    QString FontName() const override { return QStringLiteral("Arial"); }
    double FontSize() const override { return 9; }
    bool HasTransparentLabel() const override { return false; }
    QString MultiplierPrefix() const override { return QStringLiteral("x"); }
    std::int32_t LabelForeColor() const override { return 65535; }  // yellow
    std::int32_t LabelMovedColor() const override { return 65280; } // green
    std::int32_t LabelBackColor() const override { return 0; }      // black
    QString FileExtension() const override { return m_fileExtension; }
    QString FileCaption() const override { return m_fileCaption; }
    bool IsUserDefined() const override { return false; }

protected:
    CBuiltInGame(QString id, QString caption, QString fileExtension, QString fileCaption);

private:
    QString m_id;
    QString m_caption;
    QString m_fileExtension;
    QString m_fileCaption;
};
