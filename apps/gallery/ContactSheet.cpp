#include <afxwin.h>

#include "ContactSheet.h"

namespace
{
CSize IconSize(HICON hIcon)
{
    ICONINFO info{};
    if (!::GetIconInfo(hIcon, &info))
        return CSize(0, 0);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return CSize(info.xHotspot * 2, info.yHotspot * 2);
}

Drawing OfIcon(const CString& strName, HICON hIcon)
{
    return Drawing{strName, hIcon, nullptr, IconSize(hIcon)};
}

void AddPictures(std::vector<Drawing>& drawings, LPCTSTR pszTable, const CBitmapBtnST& table)
{
    for (int i = 0; i < table.BitmapCount(); ++i)
    {
        CString strName;
        strName.Format(_T("%s %d"), pszTable, i);
        BITMAP info{};
        ::GetObject(table.GetBitmap(i), sizeof(info), &info);
        drawings.push_back(Drawing{strName, nullptr, table.GetBitmap(i), CSize(info.bmWidth, info.bmHeight)});
    }
}

void PaintIcon(CDC& dc, CPoint at, const Drawing& drawing, int scale)
{
    ::DrawIconEx(dc, at.x, at.y, drawing.hIcon, drawing.size.cx * scale, drawing.size.cy * scale, 0, nullptr,
                 DI_NORMAL);
}

void PaintBitmap(CDC& dc, CPoint at, const Drawing& drawing, int scale)
{
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    const HGDIOBJ old = ::SelectObject(memory, drawing.hBitmap);
    dc.StretchBlt(at.x, at.y, drawing.size.cx * scale, drawing.size.cy * scale, &memory, 0, 0,
                  drawing.size.cx, drawing.size.cy, SRCCOPY);
    ::SelectObject(memory, old);
}
} // namespace

std::vector<Drawing> AllIcons()
{
    std::vector<Drawing> drawings;
#define GALLERY_ADD_ICON(member) drawings.push_back(OfIcon(_T(#member), CButtonST::member));
    OW_BUTTONST_LOADED_ICONS(GALLERY_ADD_ICON)
#undef GALLERY_ADD_ICON

    for (int id : {10031, 10032, 10033, 10034, 10035, 10099, 10100})
    {
        CString strName;
        strName.Format(_T("%d"), id);
        const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_GROUP_ICON);
        drawings.push_back(OfIcon(strName, static_cast<HICON>(::LoadImage(module, MAKEINTRESOURCE(id),
                                                                          IMAGE_ICON, 0, 0, LR_SHARED))));
    }
    return drawings;
}

std::vector<Drawing> AllPictures()
{
    std::vector<Drawing> drawings;
    AddPictures(drawings, _T("KotnaLinija"), CBitmapBtnSTKotnaLinija());
    AddPictures(drawings, _T("TekstKote"), CBitmapBtnSTTekstKote());
    AddPictures(drawings, _T("Srafura"), CBitmapBtnSTSrafura());
    AddPictures(drawings, _T("VisinskaKota"), CBitmapBtnSTVisinskaKota());
    AddPictures(drawings, _T("Linija"), CBitmapBtnSTLinija());
    AddPictures(drawings, _T("Zavrsetak"), CBitmapBtnSTSimbolPresekaZavrsetak());
    return drawings;
}

int PaintSheet(CDC& dc, const CRect& area, const std::vector<Drawing>& drawings, const SheetLayout& layout)
{
    constexpr int kNameHeight = 14;
    const int columns = (area.Width() / layout.cell.cx) > 0 ? area.Width() / layout.cell.cx : 1;
    const int drawingHeight = layout.cell.cy - (layout.names ? kNameHeight : 0);

    dc.SetBkMode(TRANSPARENT);
    CPoint at = area.TopLeft();
    int column = 0;
    for (const Drawing& drawing : drawings)
    {
        const CPoint image(at.x + (layout.cell.cx - drawing.size.cx * layout.scale) / 2,
                           at.y + (drawingHeight - drawing.size.cy * layout.scale) / 2);
        if (drawing.hIcon)
            PaintIcon(dc, image, drawing, layout.scale);
        else
            PaintBitmap(dc, image, drawing, layout.scale);
        if (layout.names)
            dc.DrawText(drawing.strName,
                        CRect(CPoint(at.x, at.y + drawingHeight), CSize(layout.cell.cx, kNameHeight)),
                        DT_CENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
        at.x += layout.cell.cx;
        if (++column == columns)
        {
            column = 0;
            at = CPoint(area.left, at.y + layout.cell.cy);
        }
    }
    return at.y + (column ? layout.cell.cy : 0) - area.top;
}
