// What stands beside the box for a floating-point number: its spin and its unit label, and the ids of both.

#include "NumbersDialog.h"

#include "Handles.h"

#include <cmath>
#include <limits>
#include <tuple>

namespace
{
class SpinBox : public Numbers
{
protected:
    CountedBox& box = dialog.own;

    /// One press, as the spin tells of it; the answer.
    LRESULT Press(int nDelta) { return Press(nDelta, box); }
    static LRESULT Press(int nDelta, CEditDoubleWithRange& pressed)
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
        Press(nDelta);
        return TextOf(box);
    }

    static void ClickArrow(CWnd& spin, bool up)
    {
        CRect client;
        spin.GetClientRect(client);
        owtest::Click(spin, CPoint(client.Width() / 2, up ? client.Height() / 4 : client.Height() * 3 / 4));
    }
};

/// A box that makes its label and its spin itself.
struct OwnControlsBox : CEditDoubleWithRange
{
    OwnControlsBox() : CEditDoubleWithRange(nullptr, c_nCreateControl, c_nCreateControl) {}
};

unsigned int NextPoolId()
{
    const unsigned int nId = ResourceIdPool::Object().AcquireId();
    ResourceIdPool::Object().ReleaseId(nId);
    return nId;
}

CRect RectIn(const CWnd& parent, const CWnd& child)
{
    CRect rect;
    child.GetWindowRect(rect);
    parent.ScreenToClient(rect);
    return rect;
}

int TextWidth(CWnd& wnd, LPCTSTR pszText)
{
    CClientDC dc(&wnd);
    if (wnd.GetFont())
        dc.SelectObject(wnd.GetFont());
    return dc.GetTextExtent(CString(pszText)).cx;
}

/// Where the own label of a box with an own spin belongs, in the parent's client coordinates.
int ExpectedLabelLeft(CWnd& parent, CWnd& box, CWnd& spin)
{
    CRect client, spinClient;
    box.GetClientRect(client);
    spin.GetClientRect(spinClient);
    CPoint corner(client.right, client.top);
    box.MapWindowPoints(&parent, &corner, 1);
    // The spin's part and the gap each count the edge once, with opposite signs.
    return corner.x + spinClient.Width() + TextWidth(parent, L" ");
}
} // namespace

TEST_F(SpinBox, StepsFromMultipleToMultiple)
{
    const struct
    {
        const wchar_t* from;
        double step;
        int delta;
        const wchar_t* to;
    } presses[] = {
        {L"0.127", 0.01, +1, L"0.14"},   {L"0.127", 0.01, -1, L"0.12"},   {L"0.12", 0.01, +1, L"0.13"},
        {L"0.13", 0.01, -1, L"0.12"},    {L"0.29", 0.01, +1, L"0.30"},    {L"0.124", 0.01, +1, L"0.13"},
        {L"-0.127", 0.01, +1, L"-0.12"}, {L"-0.127", 0.01, -1, L"-0.14"}, {L"0", 0.01, -1, L"-0.01"},
        {L"7", 2.5, +1, L"10.00"},       {L"7", 2.5, -1, L"5.00"},        {L"1", 0.5, +5, L"3.50"},
        {L"0.25", 0.5, +1, L"0.50"},     {L"1", 0.5, -3, L"-0.50"},       {L"12 kN", 1.0, +1, L"13.00"},
        {L"5", -1.0, +1, L"4.00"},
    };
    for (const auto& press : presses)
    {
        box.SetSpinStep(press.step);
        box.SetWindowText(press.from);
        EXPECT_EQ(Press(press.delta), 1);
        EXPECT_EQ(TextOf(box), press.to) << press.from << " by " << press.delta << " times " << press.step;
        EXPECT_DOUBLE_EQ(box.GetValue(), std::wcstod(press.to, nullptr)) << "the text is what is stored";
    }
}

TEST_F(SpinBox, StartsFromTheValueWhereTheTextIsNoNumber)
{
    box.SetValue(0.25);
    box.SetComplexUnit(kMillimetre);
    box.SetSpinStep(10.0);
    box.SafeSetWindowText(L"what");
    EXPECT_EQ(TextAfter(+1), L"260.00");
    box.SafeSetWindowText(L"1e999");
    EXPECT_EQ(TextAfter(-1), L"250.00") << "nor is one beyond a double";
    box.SetEmpty();
    EXPECT_EQ(TextAfter(+1), L"10.00") << "an empty box starts at zero";
}

TEST_F(SpinBox, StaysInTheRangeAlsoInALocalUnit)
{
    box.SetRange(0.001, 0.02);
    box.SetComplexUnit(kMillimetre);
    box.SetSpinStep(0.5);
    box.SetWindowText(L"19.8");
    EXPECT_EQ(TextAfter(+1), L"20.00");
    EXPECT_EQ(TextAfter(+1), L"20.00");
    EXPECT_EQ(box.GetValue(), 0.02);
    box.SetEmpty();
    EXPECT_EQ(TextAfter(+1), L"1.00") << "one step above zero lies below the range";
    box.SetMinRange(0.001);
    EXPECT_EQ(TextAfter(+1), L"1.50")
        << "the largest double as a bound has no local value, and limits nothing";
}

TEST_F(SpinBox, IgnoresAPressThatLeadsNowhere)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    // clang-format off
    const std::tuple<double, const wchar_t*, int> presses[] = {
        {0.0, L"0.1274", +1}, {std::nan(""), L"0.1274", +1}, {kInfinity, L"0.1274", +1},
        {0.01, L"1e308", -1},  // more steps from zero than a double can count
        {1e308, L"1e308", +1}, // beyond the largest double
    };
    // clang-format on
    for (const auto& [step, text, delta] : presses)
    {
        box.SetSpinStep(step);
        box.SetWindowText(text);
        handler.Take();
        EXPECT_EQ(Press(delta), 1);
        EXPECT_EQ(TextOf(box), text) << step;
        EXPECT_EQ(handler.Take(), Calls{});
    }
    box.SetValue(kInfinity);
    EXPECT_EQ(TextAfter(+1), L"inf");

    box.SetReadOnly(TRUE);
    box.SetValue(0.0);
    EXPECT_EQ(Press(+1), 77) << "nor does a read-only box touch the answer";
    EXPECT_EQ(TextOf(box), L"0.00");
}

TEST_F(SpinBox, FollowsMouseAndArrowKeysForEver)
{
    ClickArrow(dialog.OwnSpin(), true);
    EXPECT_TRUE(owtest::PumpUntil([&] { return TextOf(box) == L"0.01"; }));
    EXPECT_EQ(handler.Take(), (Calls{"change 1010", "spin 1010"})) << "stored and told, and then the press";
    ClickArrow(dialog.OwnSpin(), false);
    EXPECT_TRUE(owtest::PumpUntil([&] { return TextOf(box) == L"0.00"; }));
    EXPECT_EQ(static_cast<CSpinButtonCtrl&>(dialog.OwnSpin()).GetPos() & 0xFFFF, 50)
        << "the spin itself stays";

    dialog.given.SetFocus();
    handler.Take();
    ClickArrow(*dialog.GetDlgItem(IDC_GIVEN_SPIN), true);
    EXPECT_TRUE(owtest::PumpUntil([&] { return TextOf(dialog.given) == L"0.01"; }));
    EXPECT_EQ(handler.Take(), (Calls{"change 1011", "spin 1011"})) << "a spin of the template does the same";

    TypeInto(box, L"3");
    for (int i = 0; i < 60; ++i) // more presses than the spin's own range has room for
        owtest::Press(VK_UP);
    EXPECT_EQ(TextOf(box), L"3.60");
}

TEST_F(SpinBox, TellsOnlyHandlersThatKnowOfSpins)
{
    struct PlainHandler : CEditNNotificationHandler
    {
        int changes = 0;
        void OnEditNChange(int) override { ++changes; }
    } plain;
    for (CEditNNotificationHandler* pHandler : {static_cast<CEditNNotificationHandler*>(&plain), {}})
    {
        CEditDoubleWithRange quiet(pHandler);
        ASSERT_TRUE(quiet.Create(WS_CHILD, CRect(0, 0, 50, 20), &dialog, IDC_CREATED));
        Press(+1, quiet);
        EXPECT_EQ(quiet.GetValue(), 0.01);
        quiet.DestroyWindow();
    }
    EXPECT_EQ(plain.changes, 1);
}

TEST_F(SpinBox, SurvivesAHandlerThatClosesTheDialog)
{
    box.SetFocus();
    handler.onChange = [&] { dialog.DestroyWindow(); };
    EXPECT_EQ(Press(+1), 1);
    EXPECT_EQ(handler.Take(), (Calls{"change 1010", "leave 1010"})) << "a box that is gone reports no press";
    EXPECT_EQ(box.GetValue(), 0.01);
}

TEST_F(SpinBox, HasItsUnitLabelBesideIt)
{
    box.SetComplexUnit(kMillimetre);
    const CRect edit = RectIn(dialog, box), spin = RectIn(dialog, dialog.OwnSpin());
    EXPECT_GE(spin.left, edit.right - ::GetSystemMetrics(SM_CXEDGE))
        << "the spin took its width from the box";
    EXPECT_LE(spin.left, edit.right);

    CRect client;
    box.GetClientRect(client);
    box.MapWindowPoints(&dialog, client);
    const int nLeft = ExpectedLabelLeft(dialog, box, dialog.OwnSpin());
    EXPECT_EQ(RectIn(dialog, dialog.OwnLabel()),
              CRect(nLeft, client.top, nLeft + TextWidth(dialog, L"mm"), client.bottom));
    EXPECT_EQ(dialog.OwnLabel().GetFont()->m_hObject, dialog.GetFont()->m_hObject);

    box.SetComplexUnit(CComplexUnit(CMeasurementUnit(), 0));
    const CRect label = RectIn(dialog, dialog.OwnLabel());
    const int nSymbolGap = TextWidth(dialog, L" ") + ::GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(label.left, nLeft - nSymbolGap + 1) << "without a symbol: one pixel in place of the gap";
    EXPECT_EQ(label.Width(), 1);
}

TEST_F(SpinBox, ShowsAndHidesItsOwnControlsOnly)
{
    for (BOOL bShown : {FALSE, TRUE})
    {
        box.ShowWindow(bShown ? SW_SHOW : SW_HIDE);
        dialog.given.ShowWindow(bShown ? SW_SHOW : SW_HIDE);
        EXPECT_EQ(dialog.OwnLabel().IsWindowVisible(), bShown);
        EXPECT_EQ(dialog.OwnSpin().IsWindowVisible(), bShown);
        EXPECT_TRUE(dialog.GetDlgItem(IDC_GIVEN_SPIN)->IsWindowVisible());
        EXPECT_TRUE(dialog.GetDlgItem(IDC_GIVEN_UNIT)->IsWindowVisible());
    }
}

TEST_F(SpinBox, TakesItsOwnControlsWithItAndMayBeMadeAgain)
{
    const CRect place = RectIn(dialog, box);
    HWND givenSpin = dialog.GetDlgItem(IDC_GIVEN_SPIN)->m_hWnd;
    for (int round = 0; round < 2; ++round)
    {
        box.DestroyWindow();
        dialog.given.DestroyWindow();
        EXPECT_EQ(dialog.GetDlgItem(box.GetSpinCtrlId()), nullptr);
        EXPECT_EQ(dialog.GetDlgItem(box.GetComplexUnitStaticId()), nullptr);
        EXPECT_TRUE(::IsWindow(givenSpin)) << "the template's stays";
        EXPECT_EQ(CWnd::FromHandlePermanent(givenSpin), nullptr) << "and is let go";

        ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, place, &dialog, IDC_OWN));
        ASSERT_TRUE(dialog.given.Create(WS_CHILD | WS_VISIBLE, place, &dialog, IDC_GIVEN));
        ClickArrow(dialog.OwnSpin(), true);
    }
    EXPECT_TRUE(owtest::PumpUntil([&] { return TextOf(box) == L"0.02"; }));
}

TEST(SpinBoxParent, MayHaveNoFont)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 300, 100), nullptr, 0));
    OwnControlsBox box;
    box.SetComplexUnit(kMillimetre);
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 30), &parent, IDC_OWN));
    CWnd& label = *parent.GetDlgItem(box.GetComplexUnitStaticId());
    EXPECT_EQ(TextOf(label), L"mm") << "a unit that is set before there is a window is shown from the start";
    EXPECT_EQ(RectIn(parent, label).Width(), TextWidth(parent, L"mm"));
    parent.DestroyWindow();
}

TEST(SpinBoxIds, AreDrawnFromThePoolAndGivenBackInTheOrderOfAStack)
{
    const unsigned int nFirst = NextPoolId();
    {
        const OwnControlsBox both;
        EXPECT_EQ(both.GetComplexUnitStaticId(), nFirst);
        EXPECT_EQ(both.GetSpinCtrlId(), nFirst - 1);
        const CEditDoubleWithRange given(nullptr, IDC_GIVEN_UNIT, IDC_GIVEN_SPIN);
        EXPECT_EQ(NextPoolId(), nFirst - 2) << "given ids are not drawn";
    }
    EXPECT_EQ(NextPoolId(), nFirst);
    const CEditDoubleWithRange spinOnly(nullptr, 0, 11000);
    EXPECT_EQ(spinOnly.GetSpinCtrlId(), nFirst);
    EXPECT_EQ(spinOnly.GetComplexUnitStaticId(), 0u);
}

TEST(SpinBoxLeaks, NoneFromADialogOpenedManyTimes)
{
    class BoxesDialog : public CDialog
    {
    public:
        BOOL OnInitDialog() override
        {
            int i = 0;
            for (auto& box : m_boxes)
            {
                box.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(CPoint(10, 22 * i), CSize(60, 20)), this,
                           2000 + i);
                box.SetComplexUnit(kMillimetre);
                ++i;
            }
            return CDialog::OnInitDialog();
        }

    private:
        OwnControlsBox m_boxes[4];
    };
    const auto openAndClose = []
    {
        BoxesDialog dialog;
        ASSERT_TRUE(dialog.Create(IDD_HIDDEN));
        dialog.DestroyWindow();
    };
    openAndClose(); // what the system sets up once
    const owtest::HandleCount before = owtest::CountHandles();
    const unsigned int nNextId = NextPoolId();
    for (int round = 0; round < 30; ++round)
        openAndClose();
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_EQ(NextPoolId(), nNextId);
}
