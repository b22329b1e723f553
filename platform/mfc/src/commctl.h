#pragma once
// What the classes of the common controls share.

#include <afxcmn.h>

#include "drawn.h"
#include "safehandle.h"

#include <initializer_list>

// What a common control is made of beside its messages: the class, and its creation as a child window of
// `window_class`, whose group (ICC_...) is registered first.
#define IMPLEMENT_COMMON_CONTROL(class_name, group, window_class)                                            \
    IMPLEMENT_DYNAMIC(class_name, CWnd)                                                                      \
    class_name::class_name() = default;                                                                      \
    BOOL class_name::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)                     \
    {                                                                                                        \
        return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);                                       \
    }                                                                                                        \
    BOOL class_name::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)  \
    {                                                                                                        \
        return RegisterCommonControls(group) &&                                                              \
               CWnd::CreateEx(dwExStyle, window_class, nullptr, dwStyle, rect, pParentWnd, nID);             \
    }

/// Registers the window classes of a group of common controls (ICC_...); FALSE if the system has none.
inline BOOL RegisterCommonControls(DWORD group)
{
    const INITCOMMONCONTROLSEX init = {sizeof(init), group};
    return ::InitCommonControlsEx(&init);
}

inline HIMAGELIST SafeImages(const CImageList* images)
{
    return images == nullptr ? nullptr : images->m_hImageList;
}

/// A new object for an image list that a control made; the caller owns both. Null for a null handle.
inline CImageList* NewImageList(HIMAGELIST images)
{
    if (images == nullptr)
        return nullptr;
    auto* list = new CImageList;
    VERIFY(list->Attach(images));
    return list;
}

/// A view that goes destroys its image lists of these kinds: those that belong to an object are taken away first.
inline void ReleaseImageLists(HWND view, UINT getMessage, UINT setMessage, std::initializer_list<int> kinds)
{
    for (const int kind : kinds)
    {
        const auto images = reinterpret_cast<HIMAGELIST>(::SendMessage(view, getMessage, kind, 0));
        if (CImageList::FromHandlePermanent(images) != nullptr)
            ::SendMessage(view, setMessage, kind, 0);
    }
}

/// Reads a text whose length is not known beforehand: `read` fills a buffer of a size and answers the number
/// of characters that it put there, and is asked again with a larger buffer until one is not filled to the
/// end.
template <class Read>
CString WholeText(Read read)
{
    constexpr int firstSize = 128;
    for (int size = firstSize;; size *= 2)
    {
        CString text;
        LPTSTR buffer = text.GetBufferSetLength(size);
        buffer[0] = 0;
        const int length = read(buffer, size);
        text.ReleaseBuffer();
        if (length < size - 1)
            return text;
    }
}
