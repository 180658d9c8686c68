#include "CActionEditGame.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"

void CActionEditGame::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionEditGame");
    CGame& game = CActionHelper::Game("CActionEditGame.Execute");
    m_oldName = game.Name();
    m_oldRemarks = game.Remarks();
    game.SetName(m_name);
    game.SetRemarks(m_remarks);
    Root().EventMgr().NotifyOfGameEdit(this);
    CActionHelper::AddDirty(1);
}

void CActionEditGame::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionEditGame");
    CGame& game = CActionHelper::Game("CActionEditGame.Reverse");
    game.SetName(m_oldName);
    game.SetRemarks(m_oldRemarks);
    CActionHelper::AddDirty(-1);
    Root().EventMgr().NotifyOfGameEdit(this);
}
