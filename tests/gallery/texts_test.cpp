// The gallery's texts: what a user reads has passed through the translator, and stands in the catalogue.

#include "GalleryVisit.h"

#include "OtherText.h"

#include <regex>

namespace
{
constexpr wchar_t kMark = L'\u00AB';

/// The English catalogue with a mark in front of each translation.
std::string MarkedCatalogue()
{
    std::stringstream english;
    english << std::ifstream(L"locale\\gallery_en.po").rdbuf();
    return std::regex_replace(english.str(), std::regex("\nmsgstr \"(?!\")"), "$&\u00AB");
}

/// Whether there is a word of some length in a text. Numbers, profiles, formulas and names of calls are the same in
/// every language, and so are those of files.
bool HasWord(const CString& strText)
{
    static const std::wregex s_markup(L"<[^>]*>"), s_word(L"(^|[^A-Za-z_])[A-Za-z][a-z]{3,}($|[^A-Za-z_])");
    const std::wstring shown = std::regex_replace(std::wstring(strText), s_markup, L"");
    return strText.Find(L":\\") < 0 && std::regex_search(shown, s_word);
}

void ExpectTranslated(const CString& strText)
{
    EXPECT_TRUE(!HasWord(strText) || strText.Find(kMark) >= 0) << CStringA(strText);
}

/// The entries of a list; names of fonts are none of the gallery's.
void ExpectEntriesTranslated(CComboBox& combo)
{
    if (dynamic_cast<CFontSelectionComboBox*>(&combo))
        return;
    for (int i = 0; i < combo.GetCount(); ++i)
    {
        CString strEntry;
        combo.GetLBText(i, strEntry);
        ExpectTranslated(strEntry);
    }
}

void ExpectHeadingsTranslated(const CGridCtrl& grid)
{
    for (int nCol = 0; nCol < grid.GetColumnCount(); ++nCol)
        ExpectTranslated(grid.GetItemText(0, nCol));
}

/// The controls of a window; not what a user's own data fill: edits and the bodies of grids.
void ExpectControlsTranslated(CWnd& window)
{
    for (CWnd* pChild = window.GetWindow(GW_CHILD); pChild; pChild = pChild->GetNextWindow())
    {
        wchar_t szClass[16] = L"";
        ::GetClassNameW(*pChild, szClass, 16);
        const CString strClass(szClass);
        CString strText;
        pChild->GetWindowText(strText);
        if (strClass == L"Static" || strClass == L"Button")
            ExpectTranslated(strText);
        else if (strClass == L"ComboBox")
            ExpectEntriesTranslated(static_cast<CComboBox&>(*pChild));
        else if (auto* pGrid = dynamic_cast<CGridCtrl*>(pChild))
            ExpectHeadingsTranslated(*pGrid);
    }
}
} // namespace

TEST(GalleryTexts, GoThroughTheTranslator)
{
    const owtest::OtherText marked(MarkedCatalogue());
    OpenAndClose<CGalleryDialog>(
        [](CWnd& window)
        {
            CString strText;
            window.GetWindowText(strText);
            ExpectTranslated(strText);
            ForEachPage(window, [](CWnd& page) { ExpectControlsTranslated(page); });
            ExpectControlsTranslated(window);
            auto& log = static_cast<CListCtrl&>(*window.GetDlgItem(IDC_LOG));
            for (int i = 0; i < log.GetItemCount(); ++i)
            {
                ExpectTranslated(log.GetItemText(i, 0));
                ExpectTranslated(log.GetItemText(i, 1));
            }
        });
}
