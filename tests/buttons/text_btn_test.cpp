// The button that offers texts in a menu: the menu, the choice by mouse and by keys, the face.

#include "ButtonsDialog.h"

#include "Input.h"
#include "MenuVisit.h"

#include <gtest/gtest.h>
namespace {
class TextButtonX : public ::testing::Test {};
}
TEST_F(TextButtonX, Probe)
{
    struct D : CDialog { D():CDialog(IDD_BUTTONS){} CTextBtnST btn; CButtonST other; void DoDataExchange(CDataExchange* p) override { DDX_Control(p, IDC_PUSH, btn);DDX_Control(p, IDC_OTHER, other);} } dialog;
    ASSERT_TRUE(dialog.Create(IDD_BUTTONS));
    ASSERT_TRUE(owtest::Activate(dialog));
    OCArray<CString> texts; for (auto* p: {L"%l", L"%%c", L"a&b"}) texts.Add(p);
    dialog.btn.SetTexts(texts);
    int chosen = -7; dialog.btn.SetEnumSource(&chosen);
    {
        owtest::MenuVisit visit([](const owtest::OpenMenu& menu) { printf("%d items %ls\n", menu.Count(), menu.Text(2).c_str()); menu.Click(1); });
        owtest::Click(dialog.btn);
        printf("%d chosen %d\n", visit.Count(), chosen);
    }
    {
        owtest::MenuVisit visit([](const owtest::OpenMenu& menu) { menu.Press(VK_DOWN); menu.Press(VK_RETURN); });
        owtest::Press(VK_SPACE);
        printf("%d chosen %d\n", visit.Count(), chosen);
    }
    {
        owtest::MenuVisit visit([](const owtest::OpenMenu& menu) { menu.Press(VK_DOWN); menu.Press(VK_DOWN); menu.Press(VK_RETURN); });
        owtest::Press(VK_RETURN);
        printf("%d chosen %d\n", visit.Count(), chosen);
    }
    dialog.DestroyWindow();
}
