#pragma once
// What an example leaves to its reader: the dialog that a statement stands in, its members, the add-on's own functions.
// Declared only, as examples are compiled and not run.

#include <DialogControlsOW.h>

#include <Translator.h>
#include <uxtheme.h>
#include <vsstyle.h>

using AnyFunction = decltype([](auto&&...) {});
inline constexpr AnyFunction PaintPreview, RedrawPreview, DrawPreview, Preview, PickBeam, SetGrade, UseFont,
    ShowMember, ShowLoad, ShowMenu, ShowValues, ApplyToAll, Redraw, Insert, UsePlate, UseBolts, Order, Add,
    Plot, SaveTo, SetMark, Read, OnDraw, Calculate;

constexpr auto ePageBeams = static_cast<CPage::EPageID>(101);

class CBeamPage : public CPage
{
public:
    explicit CBeamPage(CPageDialog* pDialog);
    EPageID GetPageID() const override;
    double dSpan = 0;
};

class CBeamDialog : public CPageDialog
{
public:
    explicit CBeamDialog(CWnd* pHost);
    void BindControlsToSources(bool bBind, CPage* pPage) override;
};

class CPatternSet : public AConfigSet
{
    int GetConfigNames(CStringArray& names) override;
    bool AddConfig(const CString& name) override;
    void OverwriteConfig(const CString& name) override;
    void DeleteConfig(int nIndex) override;
    void SetCurrentConfig(int nIndex) override;
    bool IsConfigChanged() override;
    int GetCurrentConfig() override;
    CString GetConfigName(int nIndex) override;
};

class CSurroundings : public CDialog,
                      public APageFrameProvider,
                      public AButtonSTNotificationHandler,
                      public CButtonReflectedNotificationHandler
{
protected:
    CSurroundings();
    CPageManager m_manager;
    CPageTreeCtrl m_tree;
    CPageComboButtonSTCtrlGroup m_group;
    CPageDialog* pDialog;
    CPage* pFirst;
    CGridCtrl m_grid;
    CImageList m_images;
    CEdit m_edit, m_editLabel;
    CStatic m_label;
    CButtonST m_btn;
    CColorBtnST m_btnFill;
    struct
    {
        void GetNames(CStringArray& names);
    } m_layers;
    CString strText, strCaption;
    DWORD m_crFill;
    int nBeams, nButtons;
    CDataExchange* pDX;
    HICON hIcon;
    HWND hWnd;
    HDC hDC;
    CRect rect;
};
