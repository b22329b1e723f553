// What stands beside the box for a number with a point: its spin and its unit label, and the ids of both.

#include "Boxes.h"

namespace
{
struct SpinBox : Boxes
{
    OwnControlsBox& box = dialog.own;

    /// One press, as the spin tells of it; the answer.
    static LRESULT Press(CEditDoubleWithRange& pressed, int nDelta)
    {
        NM_UPDOWN press{};
        press.iPos = 50;
        press.iDelta = nDelta;
        LRESULT lResult = 77;
        pressed.OnSpinDeltapos(&press, &lResult);
        return lResult;
    }
    std::wstring TextAfter(int nDelta)
    {
        EXPECT_EQ(Press(box, nDelta), 1);
        return TextOf(box);
    }
    static CRect ClientRectIn(const CWnd& parent, const CWnd& child)
    {
        CRect rect;
        child.GetClientRect(rect);
        child.MapWindowPoints(const_cast<CWnd*>(&parent), rect);
        return rect;
    }
    static void ClickArrow(CWnd& spin, bool up)
    {
        const CRect client = ClientRectIn(spin, spin);
        owtest::Click(spin, CPoint(client.Width() / 2, up ? client.Height() / 4 : client.Height() * 3 / 4));
    }
    /// A label with this text belongs right of the box and its spin, a blank further on.
    static void ExpectLabel(CWnd& parent, const OwnControlsBox& labelled, const CString& strPlacedFor)
    {
        CClientDC dc(&parent);
        dc.SelectObject(parent.GetFont());
        const int nEdge = ::GetSystemMetrics(SM_CXEDGE);
        CRect place = ClientRectIn(parent, labelled);
        place.left = place.right + ClientRectIn(parent, labelled.Spin()).Width() - nEdge;
        place.left += strPlacedFor.IsEmpty() ? 1 : dc.GetTextExtent(L" ").cx + nEdge;
        place.right = place.left + (strPlacedFor.IsEmpty() ? 1 : dc.GetTextExtent(strPlacedFor).cx);
        EXPECT_EQ(ClientRectIn(parent, labelled.Label()), place) << CStringA(strPlacedFor).GetString();
    }
};
} // namespace

TEST_F(SpinBox, StepsFromMultipleToMultipleInItsLocalUnitAndRange)
{
    // clang-format off
    const std::tuple<const wchar_t*, double, int, const wchar_t*> presses[] = {
        {L"0.127", 0.01, +1, L"0.14"}, {L"0.127", 0.01, -1, L"0.12"}, {L"0.124", 0.01, +1, L"0.13"},
        {L"-0.127", 0.01, +1, L"-0.12"}, {L"-0.127", 0.01, -1, L"-0.14"}, {L"0", 0.01, -1, L"-0.01"},
        {L"0.29", 0.01, +1, L"0.30"}, // 28.999 steps in binary
        {L"7", 2.5, +1, L"10.00"}, {L"7", 2.5, -1, L"5.00"}, {L"0.25", 0.5, +1, L"0.50"},
        {L"1", 0.5, -3, L"-0.50"}, {L"12 kN", 1.0, +1, L"13.00"}, {L"5", -1.0, +1, L"4.00"},
        {L"0.1", 0.0, +1, nullptr}, {L"1e308", 1e308, +1, nullptr}}; // where no finite number is
    // clang-format on
    for (const auto& [from, step, delta, to] : presses)
    {
        SCOPED_TRACE(testing::Message() << from << " by " << delta << " times " << step);
        box.SetSpinStep(step);
        EXPECT_EQ(box.GetSpinStep(), step);
        box.SetWindowText(from);
        handler.Take();
        EXPECT_EQ(TextAfter(delta), to ? to : from);
        EXPECT_EQ(handler.Take(), to ? "change 1005; spin 1005; " : "");
        EXPECT_DOUBLE_EQ(box.GetValue(), std::wcstod(TextOf(box).c_str(), nullptr)) << "the text is stored";
    }
    box.SetValue(0.0);
    box.SetReadOnly(TRUE);
    EXPECT_TRUE(Press(box, +1) == 77 && box.GetValue() == 0.0) << "a read-only box does not touch the answer";
    box.SetReadOnly(FALSE);

    box.SetSpinStep(10.0);
    box.SetComplexUnit(kMillimetre);
    box.SetValue(0.25);
    box.SafeSetWindowText(L"what");
    EXPECT_EQ(TextAfter(+1), L"260.00") << "from the value where the text is no number";
    box.SetEmpty();
    EXPECT_EQ(TextAfter(+1), L"10.00") << "from zero in an empty box";
    box.SetRange(0.025, 0.033);
    for (const wchar_t* text : {L"30.00", L"33.00", L"33.00"})
        EXPECT_EQ(TextAfter(+1), text);
    box.SetEmpty();
    EXPECT_EQ(TextAfter(+1), L"25.00") << "one step above zero lies below the range";
}

TEST_F(SpinBox, FollowsMouseAndArrowKeysForEverAndTellsHandlersThatKnowOfSpins)
{
    for (CEditDoubleWithRange* pBox : {&static_cast<CEditDoubleWithRange&>(box), &dialog.given})
    {
        CWnd& spin = *dialog.GetDlgItem(pBox->GetSpinCtrlId());
        const std::string id = std::to_string(pBox->GetDlgCtrlID()) + "; ";
        pBox->SetFocus();
        handler.Take();
        ClickArrow(spin, pBox == &box);
        EXPECT_TRUE(owtest::PumpUntil([&] { return TextOf(*pBox) == (pBox == &box ? L"0.01" : L"-0.01"); }));
        EXPECT_EQ(handler.Take(), "change " + id + "spin " + id) << "stored and told, and then the press";
    }
    TypeInto(box, L"3");
    for (int i = 0; i < 60; ++i) // more presses than the spin's own range has room for
        owtest::Press(VK_UP);
    EXPECT_EQ(TextOf(box), L"3.60");

    handler.Take();
    handler.look = [&] { return dialog.DestroyWindow() ? " closes" : ""; };
    EXPECT_EQ(Press(box, +1), 1);
    EXPECT_EQ(handler.Take(), "leave 1005 closes; change 1005 closes; ")
        << "one that is gone reports no press";
}

TEST_F(SpinBox, HasItsUnitLabelBesideIt)
{
    EXPECT_EQ(dialog.given.GetWindow(GW_HWNDPREV), &box.Spin()) << "in no dialog group but that of the box";
    EXPECT_EQ(box.Spin().GetWindow(GW_HWNDPREV), &box.Label());
    ExpectLabel(dialog, box, L"x");
    for (const CComplexUnit& unit : {kMillimetre, CComplexUnit(CMeasurementUnit(), 0), kCentimetre})
    {
        box.SetComplexUnit(unit);
        EXPECT_EQ(TextOf(box.Label()), unit.Symbol().GetString());
        ExpectLabel(dialog, box, unit.Symbol());
    }

    CWnd bare; // has no font
    ASSERT_TRUE(bare.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 300, 100), nullptr, 0));
    OwnControlsBox other;
    other.SetComplexUnit(kMillimetre);
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 30), &bare, kFree));
    EXPECT_EQ(TextOf(other.Label()), L"mm") << "a unit of before there is a window is shown from the start";
    for (const UINT message : {WM_SETFOCUS, WM_KILLFOCUS})
        other.SendMessage(message); // there is no handler
    EXPECT_EQ(Press(other, +1), 1);
    bare.DestroyWindow();
}

TEST_F(SpinBox, ShowsHidesAndTakesWithItItsOwnControlsOnly)
{
    const CRect place = ClientRectIn(dialog, box);
    const HWND hGivenSpin = *dialog.GetDlgItem(kGivenSpin);
    for (const BOOL bShown : {FALSE, TRUE})
    {
        box.ShowWindow(bShown ? SW_SHOW : SW_HIDE);
        dialog.given.ShowWindow(bShown ? SW_SHOW : SW_HIDE);
        EXPECT_TRUE(box.Label().IsWindowVisible() == bShown && box.Spin().IsWindowVisible() == bShown);
        EXPECT_TRUE(dialog.GetDlgItem(kGivenUnit)->IsWindowVisible() && ::IsWindowVisible(hGivenSpin));
    }
    box.DestroyWindow();
    dialog.given.DestroyWindow();
    EXPECT_FALSE(dialog.GetDlgItem(box.GetSpinCtrlId()) || dialog.GetDlgItem(box.GetComplexUnitStaticId()));
    EXPECT_TRUE(::IsWindow(hGivenSpin) && !CWnd::FromHandlePermanent(hGivenSpin)) << "is let go";
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, place, &dialog, kOwn)); // made again
    ClickArrow(box.Spin(), true);
    EXPECT_TRUE(owtest::PumpUntil([&] { return TextOf(box) == L"0.01"; }));
}

TEST(SpinBoxIds, AreDrawnFromThePoolAndGivenBackInTheOrderOfAStackWithAllThatADialogTakes)
{
    owtest::HandleCount before;
    unsigned int nFirst = 0;
    for (int round = 0; round < 12; ++round)
    {
        before = round == 2 ? owtest::CountHandles() : before; // with what the system sets up once
        BoxesDialog opened(nullptr);
        ASSERT_TRUE(opened.Open());
        nFirst = round == 0 ? opened.own.GetComplexUnitStaticId() : nFirst;
        EXPECT_EQ(opened.own.GetComplexUnitStaticId(), nFirst);
        EXPECT_EQ(opened.own.GetSpinCtrlId(), nFirst - 1);
        opened.DestroyWindow();
    }
    EXPECT_EQ(owtest::CountHandles(), before);
}
