#include "acadhost.h"
#include "rxmfcapi.h"

static constexpr TCHAR kDefaultTitle[] = L"CAD host";

namespace
{
/// The frame of a program that brings none of its own.
class CHostFrame : public CFrameWnd
{
protected:
    void PostNcDestroy() override;
};

CFrameWnd* s_pFrame = nullptr;
bool s_bOwnFrame = false; ///< whether s_pFrame is a CHostFrame of ours

void CHostFrame::PostNcDestroy()
{
    if (s_pFrame == this)
        s_pFrame = nullptr;
    CFrameWnd::PostNcDestroy(); // deletes the object
}
} // namespace

CFrameWnd* acedGetAcadFrame()
{
    return s_pFrame ? s_pFrame : acadhostCreateFrame(kDefaultTitle, SW_HIDE);
}

CFrameWnd* acadhostCreateFrame(LPCTSTR lpszTitle, int nCmdShow)
{
    if (s_pFrame)
    {
        s_pFrame->SetWindowText(lpszTitle);
    }
    else
    {
        auto* pFrame = new CHostFrame; // deletes itself with its window, also if Create fails half-way
        if (!pFrame->Create(nullptr, lpszTitle))
            return nullptr;
        s_pFrame = pFrame;
        s_bOwnFrame = true;
    }
    s_pFrame->ShowWindow(nCmdShow);
    return s_pFrame;
}

void acadhostUseFrame(CFrameWnd* pFrame)
{
    acadhostDestroyFrame();
    s_pFrame = pFrame;
    s_bOwnFrame = false;
}

void acadhostDestroyFrame()
{
    if (s_pFrame && s_bOwnFrame)
        s_pFrame->DestroyWindow();
}

bool acadhostHasFrame()
{
    return s_pFrame != nullptr;
}
