// The contract of a box with a typed value: stored at each keystroke, normalised when the user leaves.

#include "EditsDialog.h"

#include "Input.h"

#include <gtest/gtest.h>

using Calls = std::vector<std::string>;

namespace
{
/// Writes down the value that it finds stored when it is called.
class ValueHandler : public CEditNNotificationHandler
{
public:
    explicit ValueHandler(EditsDialog*& pDialog) : m_pDialog(pDialog) {}
    std::vector<int> onChange;
    std::vector<std::wstring> onLeave;

    void OnEditNChange(int nId) override
    {
        if (nId == IDC_FIRST)
            onChange.push_back(m_pDialog->first.value);
    }
    void OnEditNKillFocus(int nId) override
    {
        if (nId == IDC_FIRST)
            onLeave.push_back(m_pDialog->Text(IDC_FIRST));
    }

private:
    EditsDialog*& m_pDialog;
};

class TypedBox : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_pDialog = &m_dialog;
        ASSERT_TRUE(m_dialog.Create(IDD_EDITS));
        ASSERT_TRUE(owtest::Activate(m_dialog));
        owtest::Click(m_dialog.first);
        ASSERT_TRUE(owtest::PumpUntil([&] { return m_dialog.HasFocus(IDC_FIRST); }));
        m_dialog.first.SetSel(0, -1);
        m_dialog.first.updates = 0;
    }
    void TearDown() override { m_dialog.DestroyWindow(); }

    void Leave()
    {
        owtest::Press(VK_TAB);
        ASSERT_TRUE(owtest::PumpUntil([&] { return m_dialog.HasFocus(IDC_SECOND); }));
    }

    EditsDialog* m_pDialog = nullptr;
    ValueHandler m_handler{m_pDialog};
    EditsDialog m_dialog{&m_handler};
};
} // namespace

TEST_F(TypedBox, StoresAtEachKeystrokeAndNormalisesOnLeaving)
{
    owtest::Type(L"123");
    EXPECT_EQ(m_handler.onChange, (std::vector<int>{1, 12, 99})) << "stored, within its limits, before the call";
    EXPECT_EQ(m_dialog.Text(IDC_FIRST), L"123") << "what is typed stays while the user is in the box";
    Leave();
    EXPECT_EQ(m_dialog.Text(IDC_FIRST), L"99 pcs");
    EXPECT_EQ(m_handler.onLeave, std::vector<std::wstring>{L"99 pcs"}) << "rewritten before the call";
    EXPECT_EQ(m_handler.onChange.size(), 3u) << "the rewriting is not reported";
}

TEST_F(TypedBox, ForgetsATextThatDoesNotParse)
{
    owtest::Type(L"ab");
    EXPECT_FALSE(m_dialog.first.IsDataCurrentlyInGUIValid());
    EXPECT_EQ(m_handler.onChange, (std::vector<int>{7, 7})) << "reported, with the old value";
    Leave();
    EXPECT_EQ(m_dialog.Text(IDC_FIRST), L"7 pcs");
}

TEST_F(TypedBox, IsNotRewrittenWhenItWasOnlyVisited)
{
    m_dialog.first.SafeSetWindowText(L"as it was");
    Leave();
    EXPECT_EQ(m_dialog.Text(IDC_FIRST), L"as it was");
    EXPECT_EQ(m_dialog.first.updates, 0);
    EXPECT_EQ(m_handler.onLeave.size(), 1u) << "leaving is reported all the same";
}

TEST_F(TypedBox, AValueThatTheProgramSetsIsShownAndNotReported)
{
    m_dialog.first.SetValue(42);
    EXPECT_EQ(m_dialog.Text(IDC_FIRST), L"42 pcs");
    EXPECT_TRUE(m_handler.onChange.empty());
    EXPECT_FALSE(m_dialog.first.HasChangedSinceLastSetFocus());
}
