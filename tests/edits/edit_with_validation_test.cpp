// The contract of a box with a typed value: stored at each keystroke, normalised when the user leaves.

#include "EditsDialog.h"

namespace
{
/// Each call is written down with the value that is stored, and with the text.
class TypedBox : public Edits
{
protected:
    TypedBox() : Edits(IDC_FIRST)
    {
        m_handler.look = [this]
        {
            return ": " + std::to_string(box.value) + " '" +
                   std::string(CStringA(owtest::TextOf(box).c_str())) + "'";
        };
    }
    void SetUp() override
    {
        Edits::SetUp();
        box.SetSel(0, -1);
        box.updates = 0;
    }
    Calls TakeAfterLeaving()
    {
        owtest::Press(VK_TAB);
        EXPECT_TRUE(FocusArrives(IDC_SECOND));
        Calls calls = m_handler.Take();
        calls.pop_back(); // of the second box
        return calls;
    }

    CountBox& box = m_dialog.first;
};
} // namespace

TEST_F(TypedBox, StoresBeforeItTellsOfAKeyAndNormalisesBeforeItTellsOfLeaving)
{
    owtest::Type(L"123");
    EXPECT_EQ(m_handler.Take(),
              (Calls{"change 1001: 1 '1'", "change 1001: 12 '12'", "change 1001: 99 '123'"}));
    EXPECT_EQ(TakeAfterLeaving(), Calls{"leave 1001: 99 '99 pcs'"}) << "the rewriting is not reported";
}

TEST_F(TypedBox, ForgetsATextThatDoesNotParse)
{
    owtest::Type(L"ab");
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid());
    EXPECT_EQ(m_handler.Take(), (Calls{"change 1001: 7 'a'", "change 1001: 7 'ab'"}));
    EXPECT_EQ(TakeAfterLeaving(), Calls{"leave 1001: 7 '7 pcs'"});
}

TEST_F(TypedBox, IsNotRewrittenWhenItWasOnlyVisited)
{
    box.SafeSetWindowText(L"as it was");
    EXPECT_EQ(TakeAfterLeaving(), Calls{"leave 1001: 7 'as it was'"});
    EXPECT_EQ(box.updates, 0);
}

TEST_F(TypedBox, AValueThatTheProgramSetsIsShownAndNotReported)
{
    box.SetValue(42);
    EXPECT_EQ(m_dialog.Text(IDC_FIRST), L"42 pcs");
    EXPECT_EQ(m_handler.Take(), Calls{});
    EXPECT_FALSE(box.HasChangedSinceLastSetFocus());
}
