#pragma once
// Picker buttons: the user chooses one of a fixed set of drawing styles by its picture. The button shows the
// picture that is chosen and an arrow; a click drops a menu of all pictures down at the button's right, and
// the index of the choice, counted from 0, is written into an integer of the caller's.
//
// ```cpp
//     class CDimensionDialog : public CDialog, public ABitmapBtnSTNotificationHandler
//     {
//         int m_nEnds = 0;
//         CBitmapBtnSTKotnaLinija m_btnEnds{this};
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_ENDS, m_btnEnds); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_btnEnds.SetEnumSource(&m_nEnds);
//             return TRUE;
//         }
//         void OnBitmapChosen(int nId, int nIndex) override { RedrawPreview(); } // m_nEnds == nIndex
//     };
// ```
//
// There is a class for each set of pictures:
//
//     CBitmapBtnSTKotnaLinija              21  ends of a dimension line       48 by 16 pixels
//     CBitmapBtnSTTekstKote                 6  places of a dimension text     48 by 16
//     CBitmapBtnSTSrafura                  10  hatches                        32 by 24
//     CBitmapBtnSTVisinskaKota              3  elevation marks                32 by 24
//     CBitmapBtnSTLinija                   13  line styles                    48 by 16
//     CBitmapBtnSTSimbolPresekaLinija      13  lines of a section symbol      48 by 16
//     CBitmapBtnSTSimbolPresekaZavrsetak   11  ends of a section symbol       32 by 24
//
// Size. The picture has the room that DropButton.h shows: a button 19 pixels wider and 10 higher than the
// picture shows all of it, a smaller one its middle. A raised button without a visual style takes 2 pixels
// more in each direction while it has the focus.
//
// Choosing. A click, Space or Enter opens the menu; arrow keys and Enter, or the mouse, choose; Escape leaves
// everything as it was. A key that is still held from opening the menu does nothing in it. The value is
// stored first, then the handler is called, also for the picture that was chosen already. The handler may
// close the dialog; otherwise the parent is painted anew afterwards. It hears nothing of clicks and choices.
//
// Look. Pictures of one bit take on the colour of the button's face and of the menu; their black stays black.
// While pressed, picture and arrow move by one pixel (the arrow of an even height only sideways). A disabled
// picker shows an engraved arrow and no picture. An icon, a bitmap or a title of the button would be drawn
// over the picture, and DrawTransparent leaves nothing but the ground: a picker has none of these. It is
// always a push button, whatever the type of the control that it takes over.
//
// Menu ids. Each button owns its menu and receives its choices itself, so that two pickers may use the same
// ids. They begin at GetStartWindowMsg().
//
// What a caller must not do:
// - Let the user click before there is a source: then there is nowhere to write the choice. It is lost, and
//   the handler is told 0.
// - Show an index out of the range of pictures on an enabled button: it looks empty, with nothing but its
//   arrow.
// - Send WM_COMMAND to the button by other hands than its menu's. Whatever it says, the handler is called; an
//   id below those of the menu is stored as a negative index, one above them is not stored.
//
// The pictures themselves are loaded by start-up, once for the process, and belong to their class.
// UnloadBitmaps frees them, and LoadBitmaps, which does not look whether they are there already, loads them
// again. Buttons that are open at that time keep their menus, and are empty until the pictures are back. A
// picture that did not load is a null handle: it has an empty place in the menu, which can be chosen, and
// leaves the button empty.

#include <afxwin.h>

#include "buttons/ButtonST.h"

#include <memory>
#include <vector>

/// A button that chooses from pictures. To have a set of your own, derive and answer the pictures.
class OW_DIALOGCONTROLS_API CBitmapBtnST : public CButtonST
{
public:
    CBitmapBtnST();
    /// The handler is not owned, may be null, and must outlive the button.
    explicit CBitmapBtnST(ABitmapBtnSTNotificationHandler* pHandler);
    ~CBitmapBtnST() override;

    /// Where the index stands and goes. Not owned; must live as long as the button is used. The button is
    /// painted anew. Null takes the source away and changes nothing on the screen.
    void SetEnumSource(int* pnSource);
    /// The index that the source holds; 0 without a source.
    int GetEnumSource() const;

    /// The picture at an index from 0 to BitmapCount() - 1; the index is not checked. Not owned by the
    /// caller. Null if there is none.
    virtual HBITMAP GetBitmap(int index) const = 0;
    /// Entries of the menu.
    virtual int BitmapCount() const = 0;
    /// Id of the menu's first item; the others follow.
    virtual UINT GetStartWindowMsg() const;

protected:
    /// Makes the menu, with copies of the pictures on the menu's colour. What was there before is freed.
    void CreateMenusAndBitmaps();
    /// Frees the menu and its pictures.
    void DeleteMenusAndBitmaps();

    void PreSubclassWindow() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    DWORD OnDrawBackground(CDC* pDC, CRect& rect) override;

    afx_msg void OnClicked();
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

    /// A menu and the pictures that it shows.
    struct PictureMenu
    {
        std::vector<CBitmap> bitmaps; ///< on the menu's colour, selected into no context
        std::vector<CSize> sizes;     ///< of each picture, in pixels; zero where there is none
        CMenu popup;
    };

    int* m_pnEnumSource = nullptr; ///< not owned
    /// Empty before there is a window. One that is open stays till it closes, whatever is made meanwhile.
    std::shared_ptr<PictureMenu> m_pMenu = std::make_shared<PictureMenu>();
    ABitmapBtnSTNotificationHandler* m_pChoiceHandler = nullptr;

private:
    void CopyPictures(PictureMenu& menu);
    void AppendItems(PictureMenu& menu);
    void DrawPicture(CDC& dc, const CRect& face) const;
};

namespace ow
{
/// The pictures of one class. A handle is null where the resource did not load.
template <int Count>
struct PictureTable
{
    HBITMAP handles[Count] = {};
    bool loaded = false;
};
} // namespace ow

// What each class of the family declares.
#define OW_DECLARE_PICTURES(Count)                                                                           \
public:                                                                                                      \
    using CBitmapBtnST::CBitmapBtnST;                                                                        \
                                                                                                             \
    static void LoadBitmaps(HINSTANCE hInstance);                                                            \
    static void UnloadBitmaps();                                                                             \
    static ow::PictureTable<Count> s_pictures;                                                               \
                                                                                                             \
    HBITMAP GetBitmap(int index) const override;                                                             \
    int BitmapCount() const override;

/// Ends of a dimension line.
class OW_DIALOGCONTROLS_API CBitmapBtnSTKotnaLinija : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(21)
};

/// Places of a dimension text. The menu has ids of its own, so that it can stand beside another picker's.
class OW_DIALOGCONTROLS_API CBitmapBtnSTTekstKote : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(6)
    UINT GetStartWindowMsg() const override;
};

/// Hatches.
class OW_DIALOGCONTROLS_API CBitmapBtnSTSrafura : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(10)
};

/// Elevation marks.
class OW_DIALOGCONTROLS_API CBitmapBtnSTVisinskaKota : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(3)
};

/// Line styles.
class OW_DIALOGCONTROLS_API CBitmapBtnSTLinija : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(13)
};

/// Lines of a section symbol: the pictures of the line styles, in a table of their own.
class OW_DIALOGCONTROLS_API CBitmapBtnSTSimbolPresekaLinija : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(13)
};

/// Ends of a section symbol.
class OW_DIALOGCONTROLS_API CBitmapBtnSTSimbolPresekaZavrsetak : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(11)
};
