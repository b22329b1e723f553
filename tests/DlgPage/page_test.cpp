// CPage by itself: what it stores for the concrete pages of the modules, and where it lies in memory.

#include "PagesHost.h"

#include <cstdint>

namespace
{
struct OpenPage : RecordingPage
{
    OpenPage() : RecordingPage(L"Beams", nullptr, 1) {}
    /// The eight flags, and the values.
    std::string State() const
    {
        std::string state;
        for (const int n :
             {formatGoreSet, formatDoleSet, formatIzvorSet, duzinaSet, sirinaSet, debljinaSet, separatorSet,
              polozajSet, formatGore.nTekstKote, formatDole.nTekstKote, formatIzvor.nTekstKote,
              duzina.nUnitIndex, sirina.nUnitIndex, debljina.nUnitIndex, separator, polozaj, idConf})
            state += std::to_string(n) + ' ';
        return state;
    }
    void PreSet(int nGore, int nDole, int nIzvor)
    {
        SetFormatGore({nGore, {}, {}, {}});
        SetFormatDole({nDole, {}, {}, {}});
        SetFormatIzvor({nIzvor, {}, {}, {}});
    }
};
} // namespace

TEST(Page, KeepsWhatIsPreSetUntilAConfigurationIsChosen)
{
    constexpr int kNotSet = CFormatTekstaKote::kNotSet;
    OpenPage page;
    page.PreSet(kNotSet, kNotSet, kNotSet);
    EXPECT_TRUE(page.State().starts_with("0 0 0 ")) << "a text format that is not set is ignored";
    page.PreSet(1, 2, 3);
    page.SetDuzina({4, 1, 0});
    page.SetSirina({5, 1, 0});
    page.SetDebljina({6, 1, 0});
    page.SetSeparator(7);
    page.SetPolozaj(-1); // no marker: any position is one
    page.PreSet(kNotSet, kNotSet, kNotSet);
    EXPECT_EQ(page.State(), "1 1 1 1 1 1 1 1 1 2 3 4 5 6 7 -1 0 ");
    page.SetIdConf(12);
    EXPECT_EQ(page.State(), "0 0 0 0 0 0 0 0 1 2 3 4 5 6 7 -1 12 ");

    for (const bool bVisible : {true, false})
        page.ChangeVisibility(bVisible);
    page.SendFocusedControlKillFocusMessage();
    EXPECT_TRUE(page.GetPreviewID() == 0 && page.GetDialogTemplateID() == 0) << "a name only";
}

TEST(PageMemory, PagesOfAnySizeLieBelow4GiBAndApartAndWhatIsFreedServesTheNext)
{
    struct LargePage : RecordingPage
    {
        using RecordingPage::RecordingPage;
        char values[100000] = {1}; // more than the memory is taken in
    };
    std::vector<std::unique_ptr<RecordingPage>> pages;
    for (int i = 0; i < 400; ++i)
    {
        pages.emplace_back(i % 40 == 0   ? new LargePage(L"large", nullptr, i)
                           : i % 40 == 1 ? new (std::nothrow) RecordingPage(L"nothrow", nullptr, i)
                                         : new RecordingPage(L"small", nullptr, i));
        ASSERT_TRUE(pages.back() && reinterpret_cast<std::uintptr_t>(pages.back().get()) >> 32 == 0);
    }
    for (int i = 0; i < 400; ++i)
        ASSERT_EQ(pages[i]->GetPageID(), i) << "overwritten by another page";
    EXPECT_THROW(CPage::operator new (std::size_t{1} << 33), CMemoryException*);
    EXPECT_EQ(CPage::operator new (std::size_t{1} << 33, std::nothrow), nullptr) << "no room below 4 GiB";

    struct FailingPage : RecordingPage
    {
        FailingPage() : RecordingPage(L"failing", nullptr, 1) { throw 1; }
    };
    const void* const pPlace = pages[399].get();
    for (int i = 0; i < 10; ++i)
    {
        pages[399].reset();
        EXPECT_THROW(new FailingPage, int);
        EXPECT_THROW(new (std::nothrow) FailingPage, int);
        pages[399] = std::make_unique<RecordingPage>(L"one", nullptr, 1);
        ASSERT_EQ(pages[399].get(), pPlace);
    }
}
