#pragma once
// A button with a swatch of an RGB colour. A click opens a pop-up of twenty colours below it; the one that
// the user chooses is written into a variable of the owner, and a handler hears of it.
//
// ```cpp
//     class CLayerDialog : public CDialog, public AColorBtnSTNotificationHandler
//     {
//         CColorBtnST m_btnFill{this};
//         DWORD m_crFill = RGB(255, 244, 204);
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_FILL, m_btnFill); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_btnFill.SetColorSource(&m_crFill);
//             return TRUE;
//         }
//         void OnColorChosen(int nId, int nColor) override { PaintPreview(m_crFill); }
//     };
// ```
//
// Look. The swatch ends 14 pixels from the right and 5 from the other edges; the arrow stands right of it
// (see DropButton.h). A disabled button shows an engraved arrow and no swatch, and one that is smaller than
// 20 by 11 pixels no swatch either. All else is as with CButtonST, except that a colour button is always a
// push button.
//
// Source. The variable is the caller's and must outlive its use here. A button that is painted or clicked
// without one is a broken assumption and ends the process (AssertReport.h): call SetColorSource before the
// dialog shows. After changing the variable yourself call SetColorSource again, or Invalidate.
//
// Clicks. Mouse, Space and Enter open the pop-up, a CColorSelectDialog, over a dialog that is disabled
// meanwhile. If another colour was chosen, it is in the variable, the parent has been invalidated, and then
// come OnClickedHook and the handler. A choice of the same colour tells nobody. At last the click goes to
// the parent as BN_CLICKED, as with CButtonST. If the button loses its window while the pop-up is open, the
// pop-up closes and the choice counts for nothing; nobody is told.
//
// Palette. The twenty colours are the same for all buttons of the process, and begin as Reset makes them.
// "Other..." puts a colour in the place of the one that was chosen longest ago. Store and Load keep the
// palette in the application's profile, section "ColorData", entries "ColorTable" and "MRU". The library
// calls neither of them:
//
// ```cpp
//     class CAddOnApp : public CWinApp
//     {
//         BOOL InitInstance() override { CColorBtnST::Load(); return CWinApp::InitInstance(); }
//         int ExitInstance() override { CColorBtnST::Store(); return CWinApp::ExitInstance(); }
//     };
// ```

#include <afxwin.h>

#include "buttons/ButtonST.h"

#include <array>
#include <memory>

class CColorSelectDialog;

class OW_DIALOGCONTROLS_API CColorBtnST : public CButtonST
{
public:
    /// Colours that the pop-up offers.
    static constexpr int kPaletteSize = 20;

    CColorBtnST();
    /// The handler is not owned, may be null, and must outlive the button.
    explicit CColorBtnST(AColorBtnSTNotificationHandler* pHandler);
    ~CColorBtnST() override;

    /// The variable that is shown and written, a COLORREF; not owned. Repaints unless it is null.
    void SetColorSource(DWORD* pColor);

    // ---- The palette --------------------------------------------------------------------------------------

    /// The palette as it is delivered.
    static void Reset();
    /// Writes the palette to the application's profile. 1, or 0 if a part of it could not be written.
    static int Store();
    /// Reads it from there: 1. If an entry is missing, Reset runs, and the answer is 0. The entries are
    /// taken as they are; one that is too short leaves the end of its table as it was, and of one that is
    /// too long the rest does not count.
    static int Load();

    static std::array<COLORREF, kPaletteSize> s_colorTable;
    /// For each colour its rank by last use: 1 for the most recent, 20 for the least.
    static std::array<BYTE, kPaletteSize> s_colorRecency;

protected:
    /// Another colour was chosen and is in the variable; the handler is told next. Does nothing here.
    virtual void OnClickedHook();

    void PreSubclassWindow() override;
    DWORD OnDrawBackground(CDC* pDC, CRect& rect) override;

    afx_msg BOOL OnClicked();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

    DWORD* m_pCurrentColor = nullptr; ///< not owned
    /// Shared with the click that has it open, which it thus outlives also if the button goes first.
    std::shared_ptr<CColorSelectDialog> m_pSelectDialog;
    AColorBtnSTNotificationHandler* m_pColorHandler; ///< not owned, may be null

private:
    void TakeColor(DWORD crChosen);
};
