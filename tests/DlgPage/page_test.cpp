// CPage by itself: what it stores for the concrete pages of the modules, and where it lies in memory.

#include "PagesHost.h"

#include <cstdint>
#include <memory>
#include <set>

namespace
{
CFormatTekstaKote TextFormat(int nTekstKote)
{
    CFormatTekstaKote format;
    format.nTekstKote = nTekstKote;
    return format;
}

/// The flags of what is pre-set, in the order of the fields.
std::vector<int> Flags(const RecordingPage& page)
{
    return {page.formatGoreSet, page.formatDoleSet, page.formatIzvorSet, page.duzinaSet,
            page.sirinaSet,     page.debljinaSet,   page.separatorSet,   page.polozajSet};
}

} // namespace

TEST(Page, KeepsWhatIsPreSetUntilAConfigurationIsChosen)
{
    CallLog log;
    RecordingPage page(L"Beams", nullptr, 1, log);
    EXPECT_EQ(Flags(page), std::vector<int>(8, 0));
    page.SetFormatGore(TextFormat(1));
    page.SetFormatDole(TextFormat(2));
    page.SetFormatIzvor(TextFormat(3));
    page.SetDuzina({});
    page.SetSirina({});
    page.SetDebljina({});
    page.SetSeparator(7);
    page.SetPolozaj(-1); // no marker: any position is one
    EXPECT_EQ(Flags(page), std::vector<int>(8, 1));

    const CFormatTekstaKote notSet = TextFormat(CFormatTekstaKote::c_nNotSet);
    page.SetFormatGore(notSet);
    page.SetFormatDole(notSet);
    page.SetFormatIzvor(notSet);
    EXPECT_EQ(Flags(page), std::vector<int>(8, 1)) << "a text format that is not set is ignored";
    EXPECT_EQ(page.formatGore, TextFormat(1));
    EXPECT_EQ(page.formatDole, TextFormat(2));
    EXPECT_EQ(page.formatIzvor, TextFormat(3));

    page.SetIdConf(12);
    EXPECT_EQ(page.idConf, 12);
    EXPECT_EQ(Flags(page), std::vector<int>(8, 0));
    EXPECT_EQ(page.separator, 7) << "only the flag goes";
}

TEST(Page, WithoutADialogItIsANameOnly)
{
    CallLog log;
    RecordingPage page(L"Beams", nullptr, 1, log);
    page.ChangeVisibility(true);
    page.ChangeVisibility(false);
    page.SendFocusedControlKillFocusMessage();
    page.DrawPreview(nullptr);
    EXPECT_EQ(page.GetTreeItemName(), L"Beams");
    EXPECT_EQ(page.GetPreviewID(), 0);
    EXPECT_EQ(page.GetDialogTemplateID(), 0u);
    EXPECT_EQ(log.Take(), Calls{});
}

// ---- Memory below 4 GiB -----------------------------------------------------------------------------------

TEST(PageMemory, PagesOfAnySizeLieBelow4GiBAndApart)
{
    struct LargePage : RecordingPage
    {
        using RecordingPage::RecordingPage;
        char values[100000] = {1}; // more than the memory is taken in
    };
    CallLog log;
    std::vector<std::unique_ptr<RecordingPage>> pages;
    for (int i = 0; i < 400; ++i)
    {
        pages.emplace_back(i % 40 == 0 ? new LargePage(L"large", nullptr, i, log)
                                       : new RecordingPage(L"small", nullptr, i, log));
        ASSERT_LT(reinterpret_cast<std::uintptr_t>(pages.back().get()), std::uintptr_t{1} << 32);
    }
    for (int i = 0; i < 400; ++i)
        ASSERT_EQ(pages[i]->GetPageID(), i) << "overwritten by another page";
    EXPECT_THROW(CPage::operator new (std::size_t{1} << 33), CMemoryException*);
}

TEST(PageMemory, WhatIsFreedServesTheNextPages)
{
    CallLog log;
    std::set<const void*> places;
    for (int i = 0; i < 1000; ++i)
        places.insert(std::make_unique<RecordingPage>(L"one", nullptr, 1, log).get());
    EXPECT_EQ(places.size(), 1u);
}

TEST(PageMemory, ANothrowNewLiesThereToo)
{
    struct CHugePage : RecordingPage
    {
        using RecordingPage::RecordingPage;
        char room[100'000];
    };
    CallLog log;
    const std::unique_ptr<CHugePage> page(new (std::nothrow) CHugePage(L"Huge", nullptr, 1, log));
    ASSERT_TRUE(page);
    EXPECT_LT(reinterpret_cast<std::uintptr_t>(page.get()), std::uintptr_t{1} << 32);
    EXPECT_EQ(CPage::operator new (std::size_t{1} << 33, std::nothrow), nullptr) << "no room below 4 GiB";
}
