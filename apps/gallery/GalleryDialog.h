#pragma once
// The gallery's main window: a tree of pages at the left, the selected page under its caption, a log below.

#include "GalleryHostDialog.h"

class CGalleryDialog : public CGalleryHostDialog
{
public:
    explicit CGalleryDialog(CWnd* pParent = nullptr);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

    afx_msg void OnByCombos();
    DECLARE_MESSAGE_MAP()

private:
    void PreSetPages();
    void ExpandAll();

    CPageTreeCtrl m_tree;
    CPageGradientCaptionStatic m_caption{m_tree};
};
