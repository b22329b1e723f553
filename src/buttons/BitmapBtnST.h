#pragma once
// The pictures of the picker buttons: seven tables of bitmaps, one for each class, loaded once for the process.
//
//     HBITMAP hatch = CBitmapBtnSTSrafura().GetBitmap(3);
//
// Start-up loads all seven. The handles belong to the class; UnloadBitmaps frees them, and LoadBitmaps, which does
// not look whether they are there already, loads them again.

#include "buttons/ButtonST.h"

/// The pictures of one class. A handle is null where the resource did not load.
template <int Count> struct OwPictureTable
{
    HBITMAP handles[Count] = {};
    bool loaded = false;
};

// What each class of the family declares.
#define OW_DECLARE_PICTURES(Count)                                                                           \
public:                                                                                                      \
    static void LoadBitmaps(HINSTANCE hInstance);                                                            \
    static void UnloadBitmaps();                                                                             \
    static OwPictureTable<Count> s_pictures;                                                                 \
                                                                                                             \
    HBITMAP GetBitmap(int index) const override;                                                             \
    int BitmapCount() const override;

/// A button whose pictures stand in a table.
class OW_DIALOGCONTROLS_API CBitmapBtnST : public CButtonST
{
public:
    /// The picture at an index from 0 to BitmapCount() - 1; the index is not checked. Not owned by the caller.
    virtual HBITMAP GetBitmap(int index) const = 0;
    virtual int BitmapCount() const = 0;
};

/// Ends of a dimension line.
class OW_DIALOGCONTROLS_API CBitmapBtnSTKotnaLinija : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(21)
};

/// Places of a dimension text.
class OW_DIALOGCONTROLS_API CBitmapBtnSTTekstKote : public CBitmapBtnST
{
    OW_DECLARE_PICTURES(6)
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
