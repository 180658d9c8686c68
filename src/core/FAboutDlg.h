#pragma once

// The about box: program, version, the libraries it uses and the licence.
class FAboutDlg
{
public:
    virtual ~FAboutDlg() = default;

    virtual void Display() = 0;
};
