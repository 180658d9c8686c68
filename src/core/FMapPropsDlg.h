#pragma once

#include <QString>

#include <memory>

class CMap;

// Edits a map's name, remarks and protection. The map itself is never a
// duplicate of its own name.
class FMapPropsDlg
{
public:
    virtual ~FMapPropsDlg() = default;

    // Starts from the map's values; true when the user confirmed.
    virtual bool Display(const std::shared_ptr<CMap>& map) = 0;
    virtual QString Name() const = 0;
    virtual QString Remarks() const = 0;
    // The map's Frozen flag.
    virtual bool Protected() const = 0;
};
