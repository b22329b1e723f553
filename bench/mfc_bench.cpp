// A dialog of forty controls, opened and closed.

#include <afxwin.h>

#include "Bench.h"
#include "resource.h"

namespace
{
constexpr int kControls = 40;

INT_PTR CALLBACK BareDialogProc(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}

class FortyDialog : public CDialog
{
public:
    FortyDialog() : CDialog(IDD_FORTY) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        for (int i = 0; i < kControls; ++i)
            DDX_Control(pDX, IDC_FORTY_FIRST + i, Control(i));
    }

private:
    CWnd& Control(int i)
    {
        switch (i % 4)
        {
        case 0:
            return m_labels[i / 4];
        case 1:
            return m_edits[i / 4];
        case 2:
            return m_buttons[i / 4];
        default:
            return m_combos[i / 4];
        }
    }

    CStatic m_labels[kControls / 4];
    CEdit m_edits[kControls / 4];
    CButton m_buttons[kControls / 4];
    CComboBox m_combos[kControls / 4];
};
} // namespace

static void MeasureDialog(Comparison& compare, const Benchmark::Measure& measure)
{
    compare.Ours(
        []
        {
            FortyDialog dialog;
            dialog.Create(IDD_FORTY);
            dialog.DestroyWindow();
        });
    compare.Bare(
        []
        {
            ::DestroyWindow(::CreateDialog(::GetModuleHandle(nullptr), MAKEINTRESOURCE(IDD_FORTY), nullptr,
                                           BareDialogProc));
        });
    measure();
}
static const Benchmark dialog("mfc/dialog_of_forty", 1.5, MeasureDialog);
