#pragma once
// A page of a settings dialog: a named node of the page selectors, backed by a dialog that shows its
// controls.
//
// ```cpp
//     class CBeamPage : public CPage
//     {
//     public:
//         explicit CBeamPage(CPageDialog* pDialog) : CPage(_T("Beams"), pDialog) {}
//         EPageID GetPageID() const override { return ePageBeams; }    // one of the module's own identities
//         double dSpan = 0;                                            // what the dialog's controls show
//     };
// ```
//
// ```cpp
//     m_manager.AddPage(new CBeamPage(pDialog), nullptr);              // the manager owns it from here on
// ```
//
// Several pages may share one dialog, which then shows the values of whichever is selected.
//
// Pre-set values. A caller may hand a page what its controls should start from: texts of dimensions, unit
// formats, separator and position. The page only stores them, each with a flag; a concrete page reads them.
//
// Address. CPageTreeCtrl carries pages in a word of 32 bits, so a page must lie below 4 GiB. `new` sees to
// that for CPage and every class derived from it. A page that is a local, static or member variable, or that
// an allocator places (std::make_shared, the elements of a container), has no such guarantee, and must not be
// shown by a CPageTreeCtrl. The manager deletes its pages, so it takes none that anybody else owns.

#include <afxwin.h>

#include <FormatTekstaKote.h>

#include "module/Export.h"

#include <new>

class CCmndGraphicContext;
class CPageDialog;

class OW_DIALOGCONTROLS_API CPage
{
public:
    /// Identity of a concrete page. The values belong to the modules that define pages:
    /// `constexpr auto ePageBeams = static_cast<CPage::EPageID>(101);`
    enum EPageID : int
    {
    };
    /// Identity of a page's preview; 0 means that it has none. The values belong to the modules.
    enum EPagePreviewID : int
    {
    };

    /// The dialog is not owned, and may be null: a page without controls.
    CPage(CString strName, CPageDialog* pDialog);
    CPage(const CPage&);
    CPage& operator=(const CPage&);
    virtual ~CPage();

    /// Draws a preview of what the page's values mean. Draws nothing here.
    virtual void DrawPreview(CCmndGraphicContext* pContext) const;
    /// Which of the module's previews belongs to the page.
    virtual EPagePreviewID GetPreviewID() const;
    /// The text that page selectors and captions show.
    virtual CString GetTreeItemName() const;
    /// Shows and enables the page's dialog, binds it to this page and gives it the focus; or disables, hides
    /// and unbinds it. Nothing happens without a dialog, or once the dialog's window is gone.
    virtual void ChangeVisibility(bool bVisible);
    /// Pages are the same page if they answer the same.
    virtual EPageID GetPageID() const = 0;

    /// Template of the page's dialog; 0 without one.
    UINT GetDialogTemplateID() const;

    /// Makes a focused edit of the page's dialog take over what was typed, although the focus stays where it
    /// is.
    void SendFocusedControlKillFocusMessage();

    /// Chooses a configuration, and with it cancels everything that was pre-set.
    void SetIdConf(int nIdConf);

    /// The text above and below the dimension line, and the source text. A format that is not set is ignored:
    /// what was pre-set before stays.
    void SetFormatGore(const CFormatTekstaKote& format);
    /// Below the line.
    void SetFormatDole(const CFormatTekstaKote& format);
    /// The source text.
    void SetFormatIzvor(const CFormatTekstaKote& format);

    /// Unit formats of length, width and thickness.
    void SetDuzina(const CFormatJedinice& format);
    /// Width.
    void SetSirina(const CFormatJedinice& format);
    /// Thickness.
    void SetDebljina(const CFormatJedinice& format);

    /// The separator of the page's texts, by number.
    void SetSeparator(int nSeparator);
    /// The position of its texts, by number.
    void SetPolozaj(int nPolozaj);

    /// Pages are made below 4 GiB. Raises MFC's memory exception if there is no room; the nothrow form
    /// answers null.
    static void* operator new(std::size_t size);
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    /// No room is kept for pages that are aligned more strictly than any basic type.
    static void* operator new(std::size_t size, std::align_val_t alignment) = delete;
    static void* operator new(std::size_t, void* pPlace) noexcept { return pPlace; }
    static void operator delete(void* pPage) noexcept;
    static void operator delete(void* pPage, const std::nothrow_t&) noexcept;
    static void operator delete(void*, void*) noexcept {}
#if defined(_DEBUG)
    // For clients that redefine new as DEBUG_NEW.
    static void* operator new(std::size_t size, LPCSTR pszFile, int nLine);
    static void operator delete(void* pPage, LPCSTR pszFile, int nLine) noexcept;
#endif

protected:
    CString name;
    CPageDialog* dialog; ///< not owned, may be null
    int idConf = 0;
    CFormatTekstaKote formatGore;
    CFormatTekstaKote formatDole;
    CFormatTekstaKote formatIzvor;
    int formatGoreSet = 0;
    int formatDoleSet = 0;
    int formatIzvorSet = 0;
    CFormatJedinice duzina;
    CFormatJedinice sirina;
    CFormatJedinice debljina;
    int duzinaSet = 0;
    int sirinaSet = 0;
    int debljinaSet = 0;
    int separator = 0; ///< holds nothing until separatorSet
    int separatorSet = 0;
    int polozaj = 0; ///< holds nothing until polozajSet
    int polozajSet = 0;
};
