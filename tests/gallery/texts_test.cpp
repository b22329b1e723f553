// The gallery's texts: what a user reads has passed through the translator, and stands in the catalogue.

#include "GalleryVisit.h"

#include "Texts.h"

#include <regex>

namespace
{
constexpr wchar_t kMark = L'\u00AB';

/// A word of some length has the mark in front. Numbers, profiles, formulas and names of calls are the same in every
/// language, and so are those of files.
void ExpectTranslated(const std::wstring& text)
{
    static const std::wregex s_markup(L"<[^>]*>"), s_word(L"(^|[^A-Za-z_])[A-Za-z][a-z]{3,}($|[^A-Za-z_])");
    const bool bWord = std::regex_search(std::regex_replace(text, s_markup, L""), s_word);
    EXPECT_TRUE(!bWord || text.find(L":\\") != text.npos || text.find(kMark) != text.npos)
        << CStringA(text.c_str());
}

/// The controls of a window; not what a user's own data fill: edits, lists of fonts and the bodies of grids.
void ExpectControlsTranslated(CWnd& window)
{
    for (CWnd* pChild = window.GetWindow(GW_CHILD); pChild; pChild = pChild->GetNextWindow())
    {
        wchar_t szClass[16] = L"";
        ::GetClassNameW(*pChild, szClass, 16);
        const std::wstring className = szClass;
        if (className == L"Static" || className == L"Button")
            ExpectTranslated(owtest::TextOf(*pChild));
        else if (className == L"ComboBox" && !dynamic_cast<CFontSelectionComboBox*>(pChild))
        {
            CString strEntry;
            auto& combo = static_cast<CComboBox&>(*pChild);
            for (int i = 0; i < combo.GetCount(); ++i)
            {
                combo.GetLBText(i, strEntry);
                ExpectTranslated(strEntry.GetString());
            }
        }
        else if (auto* pGrid = dynamic_cast<CGridCtrl*>(pChild))
            for (int nCol = 0; nCol < pGrid->GetColumnCount(); ++nCol)
                ExpectTranslated(pGrid->GetItemText(0, nCol).GetString());
    }
}
} // namespace

TEST(GalleryTexts, GoThroughTheTranslator)
{
    const std::string english = owtest::ContentsOf(L"locale\\gallery_en.po");
    const owtest::OtherText marked(std::regex_replace(english, std::regex("\nmsgstr \"(?!\")"), "$&\u00AB"));
    OpenAndClose(
        [](CWnd& window)
        {
            ExpectTranslated(owtest::TextOf(window));
            ForEachPage(window, &ExpectControlsTranslated);
            ExpectControlsTranslated(window);
            auto& log = static_cast<CListCtrl&>(*window.GetDlgItem(IDC_LOG));
            for (int i = 0; i < log.GetItemCount(); ++i)
                for (const int nColumn : {0, 1})
                    ExpectTranslated(log.GetItemText(i, nColumn).GetString());
        });
}
