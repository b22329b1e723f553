#include <afxwin.h>

#include "buttons/ColorBtnST.h"

#include "buttons/ColorSelectDialog.h"
#include "buttons/ColorSwatch.h"
#include "buttons/DropButton.h"
#include "module/AssertReport.h"
#include "module/HasWindow.h"
#include "module/HostResourceScope.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr LPCTSTR kSection = L"ColorData";
constexpr LPCTSTR kColorsEntry = L"ColorTable";
constexpr LPCTSTR kRanksEntry = L"MRU";

using Colors = decltype(CColorBtnST::s_colorTable);
using Ranks = decltype(CColorBtnST::s_colorRecency);

// The dark colours are ranked from the front and the light ones from the back, so that "Other..." takes its places
// from the middle.
constexpr Colors kDefaultColors = {
    0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0, 0xC0DCC0, 0xF0CAA6,
    0xF0FBFF, 0xA4A0A0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF,
};
constexpr Ranks kDefaultRanks = {1,  3,  5,  7,  9,  11, 13, 15, 17, 19, //
                                 20, 18, 16, 14, 12, 10, 8,  6,  4,  2};

template <class Table>
BOOL WriteTable(CWinApp& app, LPCTSTR pszEntry, Table& table)
{
    return app.WriteProfileBinary(kSection, pszEntry, reinterpret_cast<BYTE*>(table.data()), sizeof(table));
}

/// As much of an entry as there is, and as the table has room for; false if there is no such entry.
template <class Table>
bool ReadTable(CWinApp& app, LPCTSTR pszEntry, Table& table)
{
    BYTE* pData = nullptr;
    UINT nBytes = 0;
    if (!app.GetProfileBinary(kSection, pszEntry, &pData, &nBytes))
        return false;
    const std::unique_ptr<BYTE[]> data(pData);
    memcpy(table.data(), pData, std::min<size_t>(nBytes, sizeof(table)));
    return true;
}
} // namespace

Colors CColorBtnST::s_colorTable = kDefaultColors;
Ranks CColorBtnST::s_colorRecency = kDefaultRanks;

CColorBtnST::CColorBtnST() : CColorBtnST(nullptr)
{
}

CColorBtnST::CColorBtnST(AColorBtnSTNotificationHandler* pHandler) : m_pColorHandler(pHandler)
{
    const CHostResourceScope resources;
    m_pSelectDialog = std::make_shared<CColorSelectDialog>(this);
}

CColorBtnST::~CColorBtnST()
{
    m_pSelectDialog->Cancel();
}

BEGIN_MESSAGE_MAP(CColorBtnST, CButtonST)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CColorBtnST::OnClicked)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

// False: the parent receives the command, too, unless it may have gone with the button.
BOOL CColorBtnST::OnClicked()
{
    const CHostResourceScope resources;
    CButtonST::OnClicked();
    ASSERT_AT(m_pCurrentColor, ".\\ColorBtnST", 273);
    const HWND hWnd = m_hWnd;
    const std::shared_ptr<CColorSelectDialog> pDialog = m_pSelectDialog;
    if (pDialog->m_hWnd)
        return FALSE; // a program clicked once more: the pop-up is open already
    pDialog->SetInitialColor(*m_pCurrentColor);
    const bool bChosen = pDialog->DoModal() == IDOK;
    if (bChosen && gfnHasWindow(this, hWnd))
        TakeColor(s_colorTable[pDialog->GetSelectedIndex()]);
    return !gfnHasWindow(this, hWnd);
}

void CColorBtnST::OnDestroy()
{
    m_pSelectDialog->Cancel();
    CButtonST::OnDestroy();
}

void CColorBtnST::PreSubclassWindow()
{
    gfnBecomePushButton(*this);
    CButtonST::PreSubclassWindow();
}

void CColorBtnST::SetColorSource(DWORD* pColor)
{
    m_pCurrentColor = pColor;
    if (pColor && m_hWnd)
        Invalidate(FALSE);
}

void CColorBtnST::OnClickedHook()
{
}

// The source may have been taken away while the pop-up was open.
void CColorBtnST::TakeColor(DWORD crChosen)
{
    ASSERT_AT(m_pCurrentColor, ".\\ColorBtnST", 276);
    DWORD& crCurrent = *m_pCurrentColor;
    const DWORD crOld = std::exchange(crCurrent, crChosen);
    Invalidate();
    if (crChosen != crOld)
        gfnTellColorChosen(
            *this, [this] { OnClickedHook(); }, m_pColorHandler,
            &AColorBtnSTNotificationHandler::OnColorChosen, crCurrent);
}

void CColorBtnST::Reset()
{
    s_colorTable = kDefaultColors;
    s_colorRecency = kDefaultRanks;
}

int CColorBtnST::Store()
{
    CWinApp* const pApp = AfxGetApp();
    return pApp && WriteTable(*pApp, kColorsEntry, s_colorTable) &&
           WriteTable(*pApp, kRanksEntry, s_colorRecency);
}

int CColorBtnST::Load()
{
    CWinApp* const pApp = AfxGetApp();
    if (pApp && ReadTable(*pApp, kColorsEntry, s_colorTable) && ReadTable(*pApp, kRanksEntry, s_colorRecency))
        return 1;
    Reset();
    return 0;
}

DWORD CColorBtnST::OnDrawBackground(CDC* pDC, CRect& rect)
{
    CButtonST::OnDrawBackground(pDC, rect);
    ASSERT_AT(m_pCurrentColor, ".\\ColorBtnST", 198);
    gfnDrawColorFace(*pDC, gfnDropFace(rect, m_bIsPressed), *m_pCurrentColor, m_bIsDisabled);
    return resultOk;
}
