#pragma once

#include <QString>

// One undoable change of the game. Execute runs on first execution and on
// every redo, so it must be repeatable after Reverse.
class IAction
{
public:
    virtual ~IAction() = default;

    // Names the action in the Undo and Redo menu entries.
    virtual QString Caption() const = 0;
    virtual void Execute() = 0;
    virtual void Reverse() = 0;
    // Whether next can merge into this action, so that this action's Reverse
    // also undoes next.
    virtual bool CanChain(const IAction& next) const = 0;
    virtual void Chain(const IAction& next) = 0;
    virtual bool Reversable() const = 0;
    // The class name written to the trace ("CActionMoveUnit").
    virtual const char* ClassName() const = 0;
};
