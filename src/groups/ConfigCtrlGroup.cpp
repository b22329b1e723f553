#include <afxwin.h>

#include "groups/ConfigCtrlGroup.h"

#include "dialogs/NazivComboDlg.h"
#include "dialogs/OstrelMessageBox.h"
#include "module/HasWindow.h"

#include <Translator.h>

namespace
{
constexpr int kAtEnd = -1;

CString DefaultName()
{
    return gOtLang.Do(L"Default");
}

// "Default" stands in the first row, and has index -1 in the set.

int RowOf(int nConfig)
{
    return nConfig + 1;
}

int ConfigOf(int nRow)
{
    return nRow - 1;
}

void Tell(LPCTSTR pszText, unsigned int nIcon)
{
    COstrelMessageBox::MessageBoxW(pszText, _T(""), MB_OK | nIcon);
}

bool Ask(LPCTSTR pszText)
{
    return COstrelMessageBox::MessageBoxW(pszText, _T(""), MB_YESNO | MB_ICONQUESTION) == IDYES;
}
} // namespace

CConfigCtrlGroup::CConfigCtrlGroup(UINT nComboId, UINT nSaveId, UINT nDeleteId, AConfigSet* pSet,
                                   AConfigCtrlGroupNotificationHandler* pHandler)
    : m_pHandler(pHandler), m_pConfigSet(pSet), m_nComboId(nComboId), m_nSaveId(nSaveId),
      m_nDeleteId(nDeleteId), m_combo(this), m_btnSave(this), m_btnDelete(this)
{
}

void CConfigCtrlGroup::DoDataExchange(CDataExchange* pDX)
{
    DDX_Control(pDX, m_nComboId, m_combo);
    DDX_Control(pDX, m_nSaveId, m_btnSave);
    DDX_Control(pDX, m_nDeleteId, m_btnDelete);
}

int CConfigCtrlGroup::OnInitDialog()
{
    m_btnSave.SetIcon(CButtonST::hIconSnimi);
    m_btnDelete.SetIcon(CButtonST::hIconBrisi);
    CStringArray names;
    if (m_pConfigSet)
        m_pConfigSet->GetConfigNames(names);
    m_combo.InsertString(kAtEnd, DefaultName());
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
        m_combo.InsertString(kAtEnd, names[i]);
    ShowCurrent();
    return 1;
}

void CConfigCtrlGroup::Refresh()
{
    if (m_combo.m_hWnd)
        ShowCurrent();
}

void CConfigCtrlGroup::OnButtonClicked(int nId)
{
    if (!m_pConfigSet)
        return;
    if (static_cast<UINT>(nId) == m_nSaveId)
        Save();
    else if (static_cast<UINT>(nId) == m_nDeleteId)
        Delete();
}

void CConfigCtrlGroup::OnExtComboBoxSelChanged(int, int)
{
    const int nRow = m_combo.GetCurSel();
    if (m_pConfigSet && nRow >= 0)
        m_pConfigSet->SetCurrentConfig(ConfigOf(nRow));
    const HWND hCombo = m_combo.m_hWnd;
    TellChanged();
    if (gfnHasWindow(&m_combo, hCombo)) // the handler may have closed the dialog
        m_combo.SetFocus();
}

void CConfigCtrlGroup::ShowCurrent()
{
    if (m_pConfigSet && m_pConfigSet->IsConfigChanged())
        SelectRow(-1);
    else
        SelectRow(RowOf(m_pConfigSet ? m_pConfigSet->GetCurrentConfig() : -1));
}

/// An entry of which the list does not know is not shown; nor is another one in its place.
void CConfigCtrlGroup::SelectRow(int nRow)
{
    m_combo.SetCurSel(nRow < m_combo.GetCount() ? nRow : -1);
}

// Wanted: each round begins with the current name, and not with what was typed last.
void CConfigCtrlGroup::Save()
{
    const CString strStart = m_pConfigSet->GetConfigName(m_pConfigSet->GetCurrentConfig());
    for (;;)
    {
        CString strName = strStart;
        if (!AskName(strName) || Store(strName))
            return;
    }
}

/// False if the user cancelled.
bool CConfigCtrlGroup::AskName(CString& strName)
{
    CStringArray names;
    m_pConfigSet->GetConfigNames(names);
    return gfnStartNazivComboDlg(strName, names, gOtLang.Do(L"Snimi"), nullptr) == IDOK;
}

/// False if the user has to give another name.
bool CConfigCtrlGroup::Store(const CString& strName)
{
    if (strName == DefaultName())
    {
        Tell(_T("Neodgovarajuci naziv"), MB_ICONHAND);
        return false;
    }
    if (m_pConfigSet->AddConfig(strName))
        m_combo.InsertString(kAtEnd, strName);
    else if (Ask(_T("Da li zelite da prethodna konfiguracija bude prepisana?")))
        m_pConfigSet->OverwriteConfig(strName);
    else
        return false;
    ShowCurrent();
    return true;
}

// Wanted: the current entry goes also while the combo box shows none, as its values have changed.
void CConfigCtrlGroup::Delete()
{
    const int nConfig = m_pConfigSet->GetCurrentConfig();
    if (nConfig < 0)
        return Tell(_T("Ne mozete da obrisete Default konfiguraciju"), MB_ICONEXCLAMATION);
    if (!Ask(_T("Brisanje tekuce konfiguracije?")))
        return;
    m_pConfigSet->DeleteConfig(nConfig);
    m_combo.DeleteString(RowOf(nConfig));
    SelectRow(RowOf(m_pConfigSet->GetCurrentConfig()));
    TellChanged();
}

void CConfigCtrlGroup::TellChanged()
{
    if (m_pHandler)
        m_pHandler->OnConfigGroupChanged(this);
}
