#pragma once
// What every page of the gallery is made of: a page dialog that writes down what its handlers hear, and a
// page with a title. Common ground of the files in pages/, each of which is the example of one family of
// controls.
//
//     void AddNumbersPage(CPageManager& manager, CGalleryHostDialog& host)
//     {
//         auto* pDialog = new CNumbersPageDialog(host);                        // the manager owns both
//         manager.AddDialog(pDialog);
//         manager.AddPage(new CGalleryPage(ePageNumbers, _T("Numbers"), pDialog), nullptr);
//     }
//
// Texts go through gOtLang, as the library's own do: those of a template when its window is made, any other
// where it is shown. A window keeps the language that it was opened in.

#include "PageIds.h"

#include <Translator.h>

#include <functional>

class CGalleryHostDialog;

class CGalleryPageDialog : public CPageDialog
{
public:
    CGalleryPageDialog(UINT nTemplateId, CGalleryHostDialog& host);

protected:
    /// Translates the template and takes the page frame's place in the tab order of the host.
    BOOL OnInitDialog() override;

    /// Writes down a handler's call, as Log("Remark", "OnEditNChange(%d)", nId). Name and format
    /// are translated.
    void Log(LPCTSTR pszControl, LPCTSTR pszFormat, ...);

    /// F6 and Shift+F6 leave the page, see CGalleryHostDialog. Tab goes round inside.
    BOOL PreTranslateMessage(MSG* pMsg) override;

private:
    CGalleryHostDialog& m_host;
};

/// A page with a title, which is translated, and nothing to remember.
class CGalleryPage : public CPage
{
public:
    CGalleryPage(EPageID id, LPCTSTR pszTitle, CPageDialog* pDialog)
        : CPage(gOtLang.Do(pszTitle), pDialog), m_id(id)
    {
    }
    EPageID GetPageID() const override { return m_id; }

private:
    EPageID m_id;
};

/// Paints an owner-drawn control in memory first, its corner at (0, 0): it follows changes without a flicker.
void PaintInMemory(const DRAWITEMSTRUCT& item, const std::function<void(CDC& dc, const CRect& area)>& paint);
