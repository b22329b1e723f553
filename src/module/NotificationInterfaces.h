#pragma once
// How the library's controls report: every notification interface, in one place.
//
// A control tells its dialog of a user's action by calling a typed interface, not by a window message. The
// dialog, or a group that stands between, implements the interface and gives itself to the control.
//
// ```cpp
//     class CBeamDialog : public CDialog, public AButtonSTNotificationHandler
//     {
//         CButtonST m_btnPick{this};
//         void OnButtonClicked(int nId) override { if (nId == IDC_PICK) PickBeam(); }
//     };
// ```
//
// Rules that hold for all of them:
// - The control changes its own state first and calls then. The call is synchronous, on the dialog's thread.
// - nId is the control id (GetDlgCtrlID), so one handler can serve many controls. A group gives itself
//   instead.
// - Handlers are not owned, are never deleted by a control, and must outlive it. No handler means silence;
//   only the extended grids must have one.
// - A handler may change the control. It must not destroy it, except that a button's handler may close the
//   dialog.
//
// Interfaces with an A in front are pure. Those with a C have an empty default for every operation, and a
// control of their families that was given no handler asks its parent window's class for the interface.

#include <afxwin.h>

#include <FontManager.h>

class CCellID;
class CConfigCtrlGroup;
class CDC;
class CFontCtrlGroup;
class CFormatJedinice;
class CFormatJediniceCtrlGroup;
class CPage;
class CRect;
struct epgFont;

// ---- Pure interfaces of single controls -------------------------------------------------------------------

/// Buttons and radio groups.
class AButtonSTNotificationHandler
{
public:
    virtual ~AButtonSTNotificationHandler() {}
    /// The button was clicked; its check state has been toggled, or its link opened, already.
    virtual void OnButtonClicked(int nId) = 0;
};

/// Bitmap picker buttons.
class ABitmapBtnSTNotificationHandler
{
public:
    virtual ~ABitmapBtnSTNotificationHandler() {}
    /// An entry was picked. `nIndex` counts from zero and stands in the bound variable already.
    virtual void OnBitmapChosen(int nId, int nIndex) = 0;
};

/// The text insertion button.
class ATextBtnSTNotificationHandler
{
public:
    virtual ~ATextBtnSTNotificationHandler() {}
    /// An entry was picked. `nIndex` counts from zero and stands in the bound variable already.
    virtual void OnTextChosen(int nId, int nIndex) = 0;
};

/// The RGB colour button.
class AColorBtnSTNotificationHandler
{
public:
    virtual ~AColorBtnSTNotificationHandler() {}
    /// Another colour was chosen. `nColor` is the COLORREF that now stands in the bound variable.
    virtual void OnColorChosen(int nId, int nColor) = 0;
};

/// The button for the CAD host's colours.
class AAcadColorBtnSTNotificationHandler
{
public:
    virtual ~AAcadColorBtnSTNotificationHandler() {}
    /// Another colour was chosen. `nColor` is the host's colour index, now in the bound variable.
    virtual void OnAcadColorChosen(int nId, int nColor) = 0;
};

/// The extended combo box.
class AExtComboBoxNotificationHandler
{
public:
    virtual ~AExtComboBoxNotificationHandler() {}
    /// The selection changed. `nSel` is the selected index, which may be -1.
    virtual void OnExtComboBoxSelChanged(int nId, int nSel) = 0;
};

/// The font combo box.
class AFontSelectionNotificationHandler
{
public:
    virtual ~AFontSelectionNotificationHandler() {}
    /// The selection changed. With no selection the string is empty and the class is 0.
    virtual void OnFontSelected(int nId, const CString& strFont, EFontClass eClass) = 0;
};

/// The extended grid with a current row.
class AExtGridCtrlNotificationHandler
{
public:
    virtual ~AExtGridCtrlNotificationHandler() {}
    /// The current row changed; `nPrevRow` is -1 the first time.
    virtual void OnExtGridRowChanged(int nId, int nRow, int nPrevRow) = 0;
    /// An in-place edit ended, and `pText` is what the cell now shows. True accepts it, false rejects it.
    virtual bool OnExtGridEndEdit(int nId, int nRow, int nCol, const CString* pText) = 0;
    /// Right click on a row that exists.
    virtual void OnExtGridRClick(int nId, int nRow) = 0;
};

/// The extended grid with a current cell.
class AExtGridCtrl2NotificationHandler
{
public:
    virtual ~AExtGridCtrl2NotificationHandler() {}
    /// The current cell changed.
    virtual void OnExtGrid2CellChanged(int nId, CCellID cell, CCellID prevCell) = 0;
    /// An in-place edit ended, and `pText` is what the cell now shows. True accepts it, false rejects it.
    virtual bool OnExtGrid2EndEdit(int nId, CCellID cell, const CString* pText) = 0;
    /// Right click on a cell that exists.
    virtual void OnExtGrid2RClick(int nId, CCellID cell) = 0;
};

/// Colours of the rows under the extended grid's cross, asked at each change of the current cell. Rows whose
/// distance from the fixed rows is below the count form a band of the header colour; columns have no such band.
class AExtGridCtrl2ExtraHeaderSupport
{
public:
    virtual ~AExtGridCtrl2ExtraHeaderSupport() {}
    /// Colour of the band.
    virtual int GetExtraHeaderColor() = 0;
    /// Rows of the band.
    virtual int GetExtraHeaderCount() = 0;
    /// Colour of the rows below it.
    virtual int GetBodyColor() = 0;
};

// ---- Pure interfaces of groups ----------------------------------------------------------------------------

/// Named configurations.
class AConfigCtrlGroupNotificationHandler
{
public:
    virtual ~AConfigCtrlGroupNotificationHandler() {}
    /// Another configuration was chosen in the combo box, or one was deleted. Saving one does not call it.
    virtual void OnConfigGroupChanged(CConfigCtrlGroup* pGroup) = 0;
};

/// Fonts.
class AFontCtrlGroupNotificationHandler
{
public:
    virtual ~AFontCtrlGroupNotificationHandler() {}
    /// A part of the font was stored in the bound record.
    virtual void OnFontGroupChanged(CFontCtrlGroup* pGroup, epgFont* pFont) = 0;
    /// The group's last control, the seventh, was clicked; nothing was stored.
    virtual void OnFontGroupButton(CFontCtrlGroup* pGroup, epgFont* pFont) = 0;
};

/// Unit formats.
class AFormatJediniceCtrlGroupNotificationHandler
{
public:
    virtual ~AFormatJediniceCtrlGroupNotificationHandler() {}
    /// The format changed. `nSource`: 0 by the combo box, 1 by the button, 2 by a change in the edit, 3 when
    /// the edit lost the focus.
    virtual void OnFormatGroupChanged(CFormatJediniceCtrlGroup* pGroup, CFormatJedinice* pFormat,
                                      int nSource) = 0;
};

// ---- Pages ------------------------------------------------------------------------------------------------

/// Told by the page selectors that a page was selected, by the user or by code. Either pointer may be null.
class ASelectPageNotificationClient
{
public:
    virtual ~ASelectPageNotificationClient() {}
    /// `pOld` was shown until now, and may be null.
    virtual void PageSelected(CPage* pNew, CPage* pOld) = 0;
};

/// Told by the page manager of each page that is added.
class AAddPageNotificationClient
{
public:
    virtual ~AAddPageNotificationClient() {}
    /// `pParent` is null for a page at the top.
    virtual void PageAdded(CPage* pPage, CPage* pParent) = 0;
};

/// Asked which page is shown.
class ACurrentPageProvider
{
public:
    virtual ~ACurrentPageProvider() {}
    /// Null before a page was selected.
    virtual CPage* GetCurrentPage() const = 0;
};

/// Told when the user changed a value on a page.
class AAttributeChangeNotificationClient
{
public:
    virtual ~AAttributeChangeNotificationClient() {}
    /// The value is stored already.
    virtual void AttributeChangedUsingGUI() = 0;
};

/// Implemented by the dialog that hosts pages.
class APageFrameProvider
{
public:
    virtual ~APageFrameProvider() {}
    /// Where page dialogs go, in the host dialog's client coordinates, in pixels.
    virtual CRect GetPageFrame() = 0;
};

// ---- Interfaces with empty defaults -----------------------------------------------------------------------

/// Text boxes.
class CEditNNotificationHandler
{
public:
    virtual ~CEditNNotificationHandler() {}
    /// The user changed the text; a typed box has stored the new value already.
    virtual void OnEditNChange(int /*nId*/) {}
    /// The box received the focus.
    virtual void OnEditNSetFocus(int /*nId*/) {}
    /// The box lost the focus; a typed box has rewritten its text already.
    virtual void OnEditNKillFocus(int /*nId*/) {}
};

/// Text boxes for a number with a spin.
class CEditDWRNotificationHandler : public CEditNNotificationHandler
{
public:
    /// The spin was pressed, and the new value is stored.
    virtual void OnEditDWRSpinDeltaPos(int /*nId*/) {}
};

/// Reflected buttons: each operation answers the notification of its name.
class CButtonReflectedNotificationHandler
{
public:
    virtual ~CButtonReflectedNotificationHandler() {}
    /// BN_CLICKED.
    virtual void ButtonReflectedOnClicked(int /*nId*/) {}
    /// BN_DOUBLECLICKED.
    virtual void ButtonReflectedOnDoubleclicked(int /*nId*/) {}
    /// The brush for the button's background, not owned by the button; null leaves the choice to the system.
    virtual HBRUSH ButtonReflectedOnCtlColor(int /*nId*/, CDC* /*pDC*/, unsigned int /*nCtlColor*/)
    {
        return nullptr;
    }
    /// WM_PARENTNOTIFY.
    virtual void ButtonReflectedOnParentNotify(int /*nId*/, unsigned int /*message*/, __int64 /*lParam*/) {}
};

/// Reflected combo boxes: each operation answers the notification of its name.
class CComboBoxReflectedNotificationHandler
{
public:
    virtual ~CComboBoxReflectedNotificationHandler() {}
    /// CBN_EDITCHANGE.
    virtual void ComboBoxReflectedOnEditchange(int /*nId*/) {}
    /// CBN_CLOSEUP.
    virtual void ComboBoxReflectedOnCloseup(int /*nId*/) {}
    /// CBN_DBLCLK.
    virtual void ComboBoxReflectedOnDblclk(int /*nId*/) {}
    /// CBN_DROPDOWN.
    virtual void ComboBoxReflectedOnDropdown(int /*nId*/) {}
    /// CBN_EDITUPDATE.
    virtual void ComboBoxReflectedOnEditupdate(int /*nId*/) {}
    /// CBN_ERRSPACE.
    virtual void ComboBoxReflectedOnErrspace(int /*nId*/) {}
    /// CBN_KILLFOCUS.
    virtual void ComboBoxReflectedOnKillfocus(int /*nId*/) {}
    /// CBN_SELCHANGE.
    virtual void ComboBoxReflectedOnSelchange(int /*nId*/) {}
    /// CBN_SELENDCANCEL.
    virtual void ComboBoxReflectedOnSelendcancel(int /*nId*/) {}
    /// CBN_SELENDOK.
    virtual void ComboBoxReflectedOnSelendok(int /*nId*/) {}
    /// CBN_SETFOCUS.
    virtual void ComboBoxReflectedOnSetfocus(int /*nId*/) {}
};
