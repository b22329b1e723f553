#pragma once
// What the classes of the common controls share.

#include <afxcmn.h>

#include "safehandle.h"

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
