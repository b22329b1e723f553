// The images of a button: taking them over, making what belongs to them, letting go of them.

#include <afxwin.h>

#include "buttons/ButtonST.h"

#include "buttons/ButtonSTImages.h"

namespace
{
/// Whether a second image, a handle or a resource id, asks for a copy of the first. Only the low 32 bits
/// count.
bool IsCopy(int nOut)
{
    return nOut == CButtonST::copyGray || nOut == CButtonST::copyDarker;
}

template <class Handle>
int LowBits(Handle handle)
{
    return static_cast<int>(reinterpret_cast<LONG_PTR>(handle));
}

ButtonImages::Formula FormulaOf(int nCopy)
{
    return nCopy == CButtonST::copyDarker ? ButtonImages::Darker : ButtonImages::Grayscale;
}

/// Loads an image from the module of the resource chain that has it; null if it does not load.
template <class Handle>
Handle LoadFromChain(int nId, LPCTSTR pszResourceType, UINT nImageType, CSize size)
{
    const HINSTANCE hModule = AfxFindResourceHandle(MAKEINTRESOURCE(nId), pszResourceType);
    return static_cast<Handle>(::LoadImage(hModule, MAKEINTRESOURCE(nId), nImageType, size.cx, size.cy, 0));
}

HICON LoadIconImage(int nId, CSize size)
{
    return LoadFromChain<HICON>(nId, RT_GROUP_ICON, IMAGE_ICON, size);
}

HBITMAP LoadBitmapImage(int nId)
{
    return LoadFromChain<HBITMAP>(nId, RT_BITMAP, IMAGE_BITMAP, CSize(0, 0));
}

/// A request for a copy, or for no second image, in the form in which the handle setters take it.
template <class Handle>
Handle CopyRequest(int nOut)
{
    return reinterpret_cast<Handle>(static_cast<LONG_PTR>(nOut));
}
} // namespace

DWORD CButtonST::SetIcon(HICON hIn, HICON hOut)
{
    FreeImages();
    if (hIn)
    {
        if (!StoreIcon(m_icons[0], hIn))
            return FailImages(resultNoImage);
        const int nOut = LowBits(hOut);
        if (IsCopy(nOut))
            hOut = ButtonImages::CreateIconCopy(hIn, FormulaOf(nOut));
        if (nOut != 0 && !StoreIcon(m_icons[1], hOut))
            return FailImages(resultNoImage);
    }
    Repaint();
    return resultOk;
}

DWORD CButtonST::SetIcon(int nIn, int nOut)
{
    return SetIcon(nIn, 0, 0, nOut, 0, 0);
}

DWORD CButtonST::SetIcon(int nIn, int cxIn, int cyIn, int nOut, int cxOut, int cyOut)
{
    if (nIn == 0)
        return SetIcon(static_cast<HICON>(nullptr));
    const HICON hIn = LoadIconImage(nIn, CSize(cxIn, cyIn));
    if (!hIn)
        return FailImages(resultNoImage);
    if (nOut == 0 || IsCopy(nOut))
        return SetIcon(hIn, CopyRequest<HICON>(nOut));
    if (const HICON hOut = LoadIconImage(nOut, CSize(cxOut, cyOut)))
        return SetIcon(hIn, hOut);
    ::DestroyIcon(hIn); // nobody has seen it yet
    return FailImages(resultNoImage);
}

// The copy is made before the mask is: making the mask changes the first bitmap. Until the first bitmap is
// whole nothing is taken of the second.
DWORD CButtonST::SetBitmaps(HBITMAP hIn, COLORREF crTransparentIn, HBITMAP hOut, COLORREF crTransparentOut)
{
    FreeImages();
    if (!hIn)
    {
        Repaint();
        return resultOk;
    }
    if (!StoreBitmap(m_bitmaps[0], hIn, crTransparentIn))
        return FailImages(resultNoImage);
    CBitmap copy;
    if (const int nOut = LowBits(hOut); IsCopy(nOut))
    {
        copy.Attach(ButtonImages::CreateBitmapCopy(hIn, m_bitmaps[0].size, crTransparentIn, FormulaOf(nOut)));
        hOut = copy;
        crTransparentOut = crTransparentIn;
    }
    if (!MakeMask(m_bitmaps[0]))
        return FailImages(resultNoMask);
    copy.Detach(); // the button's, as any second bitmap from here on
    if (hOut && !StoreBitmap(m_bitmaps[1], hOut, crTransparentOut))
        return FailImages(resultNoImage);
    if (hOut && !MakeMask(m_bitmaps[1]))
        return FailImages(resultNoMask);
    Repaint();
    return resultOk;
}

DWORD CButtonST::SetBitmaps(int nIn, COLORREF crTransparentIn, int nOut, COLORREF crTransparentOut)
{
    if (nIn == 0)
        return SetBitmaps(static_cast<HBITMAP>(nullptr), 0);
    CBitmap in, out;
    if (!in.Attach(LoadBitmapImage(nIn)))
        return FailImages(resultNoImage);
    if (nOut == 0 || IsCopy(nOut))
        return SetBitmaps(static_cast<HBITMAP>(in.Detach()), crTransparentIn, CopyRequest<HBITMAP>(nOut));
    if (!out.Attach(LoadBitmapImage(nOut)))
        return FailImages(resultNoImage);
    const DWORD result =
        SetBitmaps(static_cast<HBITMAP>(in.Detach()), crTransparentIn, out, crTransparentOut);
    const bool bTaken = result == resultOk || !::GetObjectType(out); // taken, and freed again over its mask
    if (bTaken)
        out.Detach();
    return result;
}

void CButtonST::SizeToContent()
{
    const CSize size = m_icons[0].hIcon ? m_icons[0].size : m_bitmaps[0].size;
    if (!m_hWnd || (!m_icons[0].hIcon && !m_bitmaps[0].hBitmap))
        return;
    m_ptImageOrigin = CPoint(0, 0);
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

bool CButtonST::StoreIcon(ButtonIcon& icon, HICON hIcon)
{
    icon.hIcon = hIcon;
    const auto size = ButtonImages::SizeOf(hIcon);
    icon.size = size.value_or(CSize(0, 0));
    return size.has_value();
}

bool CButtonST::StoreBitmap(ButtonBitmap& bitmap, HBITMAP hBitmap, COLORREF crTransparent)
{
    bitmap.hBitmap = hBitmap;
    bitmap.crTransparent = crTransparent;
    const auto size = ButtonImages::SizeOf(hBitmap);
    bitmap.size = size.value_or(CSize(0, 0));
    return size.has_value();
}

bool CButtonST::MakeMask(ButtonBitmap& bitmap)
{
    bitmap.hMask = ButtonImages::CreateMask(bitmap.hBitmap, bitmap.size, bitmap.crTransparent);
    return bitmap.hMask != nullptr;
}

// DeleteObject on an icon does nothing, and that is wanted: the icon may be a shared one, or show on other
// buttons.
void CButtonST::FreeImages()
{
    for (ButtonIcon& icon : m_icons)
    {
        ::DeleteObject(icon.hIcon);
        icon = ButtonIcon();
    }
    for (ButtonBitmap& bitmap : m_bitmaps)
    {
        ::DeleteObject(bitmap.hBitmap);
        ::DeleteObject(bitmap.hMask);
        bitmap = ButtonBitmap();
    }
}

DWORD CButtonST::FailImages(EResult result)
{
    FreeImages();
    return result;
}
