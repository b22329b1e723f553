#pragma once
// What every page of the gallery is made of: a page dialog that writes down what its handlers hear, and a
// page with a title. Common ground of the files in pages/, each of which is the example of one family of
// controls.

#include <DialogControlsOW.h>

#include <functional>

class CGalleryPage;

/// The dialog that shows the pages, as they see it.
class AGalleryHost
{
public:
    virtual ~AGalleryHost() {}
    virtual CDialog& Window() = 0;
    /// Takes over a page dialog, and makes its window.
    virtual void AddDialog(CGalleryPage* pDialog) = 0;
    /// Takes over a page; a null parent makes a top-level one. The answer is the page.
    virtual CPage* AddPage(CPage* pPage, CPage* pParent) = 0;
    /// Adds a line to the log of notifications.
    virtual void Write(LPCTSTR pszControl, LPCTSTR pszCall) = 0;
};

class CGalleryPage : public CPageDialog
{
public:
    CGalleryPage(UINT nTemplateId, AGalleryHost& host)
        : CPageDialog(nTemplateId, &host.Window()), m_host(host)
    {
    }

protected:
    /// Writes down a handler's call, as Log("Remark", "OnEditNChange(%d)", nId).
    void Log(LPCTSTR pszControl, LPCTSTR pszFormat, ...);

    /// F6 leaves the page, for the control behind it in the host. Tab goes round inside.
    BOOL PreTranslateMessage(MSG* pMsg) override;

private:
    AGalleryHost& m_host;
};

/// A page with a title and nothing to remember.
class CTitledPage : public CPage
{
public:
    CTitledPage(LPCTSTR pszTitle, CPageDialog* pDialog) : CPage(pszTitle, pDialog) {}
    EPageID GetPageID() const override { return m_id; }

private:
    static EPageID NextID();
    EPageID m_id = NextID(); ///< a number of its own
};

/// Paints an owner-drawn control in memory first, its corner at (0, 0): it follows changes without a flicker.
void PaintInMemory(const DRAWITEMSTRUCT& item, const std::function<void(CDC& dc, const CRect& area)>& paint);

/// Adds a dialog that serves one page only, and the page.
CPage* AddTitledPage(AGalleryHost& host, CGalleryPage* pDialog, LPCTSTR pszTitle, CPage* pParent);
