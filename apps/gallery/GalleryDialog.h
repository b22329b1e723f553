#pragma once
// The gallery's main window: pages at the left, the chosen page beside them, what the handlers hear below.

#include "Pages.h"

class CGalleryDialog : public CDialog, public AGalleryLog
{
public:
    explicit CGalleryDialog(CWnd* pParent = nullptr);

    int PageCount() const { return static_cast<int>(m_pages.size()); }
    CGalleryPage& Page(int index) const { return *m_pages[index]; }

    void Write(const CString& strLine) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

    afx_msg void OnPageSelected();
    DECLARE_MESSAGE_MAP()

private:
    void ShowPage(int index);

    CListBox m_listPages;
    CListBox m_listLog;
    CFont m_fontTitle;
    std::vector<std::unique_ptr<CGalleryPage>> m_pages;
    int m_nShown = -1;
};
