#include <afxwin.h>

#include "buttons/BitmapBtnST.h"

#include "module/HostResourceScope.h"

#include <span>

namespace
{
void LoadPictures(HINSTANCE hInstance, std::span<const WORD> ids, std::span<HBITMAP> handles, bool& loaded)
{
    const CHostResourceScope resources;
    for (size_t i = 0; i < ids.size(); ++i)
        handles[i] = ::LoadBitmap(hInstance, MAKEINTRESOURCE(ids[i]));
    loaded = true;
}

void UnloadPictures(std::span<HBITMAP> handles, bool& loaded)
{
    if (!loaded)
        return;
    for (HBITMAP& handle : handles)
    {
        ::DeleteObject(handle);
        handle = nullptr;
    }
    loaded = false;
}

// The ids in table order.
// clang-format off
constexpr WORD kKotnaLinija[] = {
    10101, 10102, 10103, 10104, 10105, 10106, 10107, 10108, 10109, 10110, 10111, 10112, 10113, 10114,
    10115, 10116, 10117, 10118, 10119, 10120, 10121
};
constexpr WORD kTekstKote[] = {10122, 10123, 10124, 10125, 10126, 10127};
constexpr WORD kSrafura[] = {
    10139, 10140, 10141, 10142, 10143, 10144, 10145, 10146, 10147, 10148
};
constexpr WORD kVisinskaKota[] = {10179, 10180, 10181};
constexpr WORD kLinija[] = {
    10076, 10077, 10078, 10079, 10080, 10183, 10184, 10182, 10185, 10187, 10189, 10190, 10191
};
constexpr WORD kSimbolPresekaZavrsetak[] = {
    10128, 10129, 10130, 10131, 10132, 10133, 10134, 10135, 10136, 10137, 10138
};
// clang-format on
} // namespace

#define OW_IMPLEMENT_PICTURES(Class, ids)                                                                    \
    decltype(Class::s_pictures) Class::s_pictures;                                                           \
    void Class::LoadBitmaps(HINSTANCE hInstance)                                                             \
    {                                                                                                        \
        LoadPictures(hInstance, ids, s_pictures.handles, s_pictures.loaded);                                 \
    }                                                                                                        \
    void Class::UnloadBitmaps()                                                                              \
    {                                                                                                        \
        UnloadPictures(s_pictures.handles, s_pictures.loaded);                                               \
    }                                                                                                        \
    HBITMAP Class::GetBitmap(int index) const                                                                \
    {                                                                                                        \
        return s_pictures.handles[index];                                                                    \
    }                                                                                                        \
    int Class::BitmapCount() const                                                                           \
    {                                                                                                        \
        static_assert(std::size(ids) == std::size(decltype(s_pictures.handles){}));                          \
        return static_cast<int>(std::size(ids));                                                             \
    }

OW_IMPLEMENT_PICTURES(CBitmapBtnSTKotnaLinija, kKotnaLinija)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTTekstKote, kTekstKote)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTSrafura, kSrafura)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTVisinskaKota, kVisinskaKota)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTLinija, kLinija)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTSimbolPresekaLinija, kLinija)
OW_IMPLEMENT_PICTURES(CBitmapBtnSTSimbolPresekaZavrsetak, kSimbolPresekaZavrsetak)
