#pragma once
// What the pages of the connection dialog have in common.
//
//     class CPlatePageDialog : public CConnectionPageDialog
//     {
//         void ShowValues(const FittedConnection& fitted) override;   // values --> controls
//         void OnEditNChange(int) override                            // a control --> its value
//         {
//             Wanted().plateWidth_m = m_editWidth.GetValue();
//             MyAttributeChanged();                                   // ShowValues is called then
//         }
//     };

#include "Language.h"
#include "Rules.h"
#include "resource.h"

#include <DialogControlsOW.h>

#include <FormatJedinice.h>

class CConnectionDialog;

class CConnectionPageDialog : public CPageDialog, public CEditDWRNotificationHandler
{
public:
    CConnectionPageDialog(UINT nTemplateId, CConnectionDialog& host);

    /// Shows the values, the limits, and what follows from them. Called whenever a value has changed: it is to
    /// leave alone what is as it should be.
    virtual void ShowValues(const FittedConnection& fitted) = 0;

    void BindControlsToSources(bool bBind, CPage* pPage) override;

protected:
    BOOL OnInitDialog() override;
    /// Escape and F6 go to the dialog; Escape not while a cell is edited or a list is open.
    BOOL PreTranslateMessage(MSG* pMsg) override;

    Connection& Wanted();
    const FittedConnection& Fitted() const;

    /// A length within its limits, which are written behind the box.
    void ShowLength(CEditDoubleWithRange& edit, double value_m, const Limits& limits);

    /// Length units and texts as the user wants them.
    CFormatJedinice LengthFormat() const;
    CString LengthText(double length_m) const;

    /// The rows of one of the tables of Steel.h.
    template <class Row>
    static void FillCombo(CComboBox& combo, std::span<const Row> table)
    {
        for (const Row& row : table)
            combo.AddString(row.name);
    }

    CConnectionDialog& m_host;

private:
    int DecimalsOfBoxes() const;
};

/// A page of the tree.
class CConnectionPage : public CPage
{
public:
    CConnectionPage(int nId, LPCTSTR pszTitle, CConnectionPageDialog* pDialog)
        : CPage(Tr(pszTitle), pDialog), m_nId(nId), m_pDialog(pDialog)
    {
    }
    EPageID GetPageID() const override { return static_cast<EPageID>(m_nId); }
    void ShowValues(const FittedConnection& fitted) const { m_pDialog->ShowValues(fitted); }

private:
    int m_nId;
    CConnectionPageDialog* m_pDialog; ///< the manager owns it
};

// Each stands in the source of its page. The manager takes them over.
CConnectionPageDialog* NewGeometryPage(CConnectionDialog& host);
CConnectionPageDialog* NewBoltsPage(CConnectionDialog& host);
CConnectionPageDialog* NewPlatePage(CConnectionDialog& host);
CConnectionPageDialog* NewCheckPage(CConnectionDialog& host);
CConnectionPageDialog* NewPartsPage(CConnectionDialog& host);
CConnectionPageDialog* NewDrawingPage(CConnectionDialog& host);
CConnectionPageDialog* NewUnitsPage(CConnectionDialog& host);

/// A grid in the manner of this dialog: a heading row, thin lines, no selection but the focus.
void SetUpGrid(CGridCtrl& grid, int nRows, int nColumns);

/// The record of the library for what the model holds.
CFormatJedinice ToFormat(const LengthStyle& style);
