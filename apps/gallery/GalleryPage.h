#pragma once
// What every page of the gallery is: a child dialog with a title, and a log to which it tells what it hears.

#include <DialogControlsOW.h>

#include <memory>

/// Where the handlers of a page write down their calls.
class AGalleryLog
{
public:
    virtual ~AGalleryLog() {}
    virtual void Write(const CString& strLine) = 0;
};

class CGalleryPage : public CDialog
{
public:
    CGalleryPage(UINT nTemplateId, LPCTSTR pszTitle, AGalleryLog& log);

    LPCTSTR Title() const { return m_pszTitle; }
    /// Makes the page's window, hidden, over the given rectangle of the host, in the host's client coordinates.
    bool CreateIn(CWnd& host, const CRect& frame);

protected:
    /// Writes down a handler's call as "CEditN  OnEditNChange(1010)".
    void Log(LPCTSTR pszControl, LPCTSTR pszFormat, ...);

    // A page is closed by its host only.
    void OnOK() override {}
    void OnCancel() override;

private:
    UINT m_nTemplateId;
    LPCTSTR m_pszTitle;
    AGalleryLog& m_log;
};
