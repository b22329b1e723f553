#include <afxwin.h>

#include "groups/RadioGroup.h"

namespace
{
constexpr int kMaxClassName = 1024; // characters

/// IDC_STATIC; the older kind of template holds ids in 16 bits.
bool IsNoId(int nId)
{
    return nId == -1 || nId == 0xFFFF;
}

bool IsLabel(const CWnd& control)
{
    wchar_t szClass[kMaxClassName] = L"";
    ::GetClassNameW(control.m_hWnd, szClass, kMaxClassName);
    return ::lstrcmpiW(szClass, L"static") == 0;
}

bool IsCheckedRadioButton(CWnd& control)
{
    return (control.SendMessage(WM_GETDLGCODE) & DLGC_RADIOBUTTON) != 0 &&
           control.SendMessage(BM_GETCHECK) == BST_CHECKED;
}

/// The control by which Tab enters a group: the first one, until the user checks another button, which takes the
/// tab stop over from it.
CWnd& FindOwnTabStop(CWnd& first)
{
    CWnd* pControl = &first;
    do
    {
        if (pControl->GetStyle() & WS_TABSTOP)
            return IsCheckedRadioButton(*pControl) ? *pControl : first;
        pControl = pControl->GetWindow(GW_HWNDNEXT);
    } while (pControl && !(pControl->GetStyle() & WS_GROUP));
    return first;
}
} // namespace

CRadioGroup::CRadioGroup(CDialog* pDlg, int nFirstId)
{
    Set(pDlg, nFirstId);
}

CRadioGroup::CRadioGroup(const CRadioGroup& other) : AButtonSTNotificationHandler(other)
{
    *this = other;
}

CRadioGroup& CRadioGroup::operator=(const CRadioGroup& other)
{
    if (this == &other)
        return *this;
    ReleaseButtons();
    m_pDialog = other.m_pDialog;
    m_pHandler = other.m_pHandler;
    m_arrIds.Copy(other.m_arrIds);
    m_arrButtons.SetSize(m_arrIds.GetSize());
    return *this;
}

CRadioGroup::~CRadioGroup()
{
    ReleaseButtons();
}

bool CRadioGroup::operator==(const CRadioGroup& other) const
{
    return GetUniqueId() == other.GetUniqueId();
}

bool CRadioGroup::operator!=(const CRadioGroup& other) const
{
    return !(*this == other);
}

void CRadioGroup::OnButtonClicked(int nId)
{
    ClearOthers(nId);
    if (m_pHandler)
        m_pHandler->OnButtonClicked(nId);
}

void CRadioGroup::Set(CDialog* pDlg, int nFirstId)
{
    Empty();
    if (!pDlg || !pDlg->m_hWnd || nFirstId == 0)
        return;
    CWnd* pFirst = pDlg->GetDlgItem(nFirstId);
    if (!pFirst)
        return;
    m_pDialog = pDlg;
    m_pHandler = dynamic_cast<AButtonSTNotificationHandler*>(pDlg);
    CollectIds(*pFirst);
    BindButtons();
}

void CRadioGroup::Empty()
{
    m_pDialog = nullptr;
    m_pHandler = nullptr;
    ReleaseButtons();
    m_arrIds.RemoveAll();
}

// The walk round a dialog group leaves out its first control if that is hidden or disabled, and so may never come
// back to it: any id that was seen before ends it.
void CRadioGroup::CollectIds(CWnd& first)
{
    CWnd& ownStop = FindOwnTabStop(first);
    CWnd* pNextStop = m_pDialog->GetNextDlgTabItem(&ownStop);
    const int nStopId = pNextStop ? pNextStop->GetDlgCtrlID() : 0;
    if (ownStop.GetDlgCtrlID() == nStopId)
        return; // wanted: a lone control in the tab order is no group

    CWnd* pControl = &first;
    int nId = first.GetDlgCtrlID();
    while (!IsNoId(nId) && Find(nId) < 0 && !IsLabel(*pControl))
    {
        m_arrIds.Add(nId);
        pControl = m_pDialog->GetNextDlgGroupItem(pControl);
        nId = pControl ? pControl->GetDlgCtrlID() : nStopId;
        if (nId == nStopId)
            return;
    }
}

void CRadioGroup::BindButtons()
{
    m_arrButtons.SetSize(m_arrIds.GetSize());
    for (INT_PTR i = 0; i < m_arrIds.GetSize(); ++i)
    {
        m_arrButtons[i].SetNotificationHandler(this);
        if (!CWnd::FromHandlePermanent(::GetDlgItem(m_pDialog->m_hWnd, m_arrIds[i])))
            m_arrButtons[i].SubclassDlgItem(m_arrIds[i], m_pDialog);
    }
}

// A window object that is destroyed takes its window along, so the dialog's controls are let go first.
void CRadioGroup::ReleaseButtons()
{
    for (INT_PTR i = 0; i < m_arrButtons.GetSize(); ++i)
    {
        if (m_arrButtons[i].m_hWnd)
            m_arrButtons[i].UnsubclassWindow();
    }
    m_arrButtons.RemoveAll();
}

void CRadioGroup::SetNotificationHandler(AButtonSTNotificationHandler* pHandler)
{
    m_pHandler = pHandler;
}

int CRadioGroup::GetUniqueId() const
{
    return m_arrIds.IsEmpty() ? 0 : FirstId();
}

int CRadioGroup::Count() const
{
    return static_cast<int>(m_arrIds.GetSize());
}

int CRadioGroup::Find(int nId) const
{
    for (int i = 0; i < Count(); ++i)
    {
        if (m_arrIds[i] == nId)
            return i;
    }
    return -1;
}

int CRadioGroup::GetOption() const
{
    return HasControls() ? Find(m_pDialog->GetCheckedRadioButton(FirstId(), LastId())) : -1;
}

void CRadioGroup::SetOption(int nOption)
{
    if (!HasControls())
        return;
    const bool bMember = nOption >= 0 && nOption < Count();
    m_pDialog->CheckRadioButton(FirstId(), LastId(), bMember ? m_arrIds[nOption] : 0);
}

void CRadioGroup::Show(bool bShow)
{
    ForEachControl([bShow](CWnd& control) { control.ShowWindow(bShow ? SW_SHOW : SW_HIDE); });
}

void CRadioGroup::Enable(bool bEnable)
{
    ForEachControl([bEnable](CWnd& control) { control.EnableWindow(bEnable); });
}

bool CRadioGroup::HasControls() const
{
    return m_pDialog && m_pDialog->m_hWnd && !m_arrIds.IsEmpty();
}

// The system clears the others, but for those that are hidden or disabled: two options would be checked.
void CRadioGroup::ClearOthers(int nId) const
{
    CWnd* const pClicked = HasControls() && Find(nId) >= 0 ? m_pDialog->GetDlgItem(nId) : nullptr;
    if (!pClicked || !IsCheckedRadioButton(*pClicked))
        return;
    ForEachControl(
        [pClicked](CWnd& control)
        {
            if (&control != pClicked && IsCheckedRadioButton(control))
                control.SendMessage(BM_SETCHECK, BST_UNCHECKED);
        });
}

template <class Function>
void CRadioGroup::ForEachControl(Function function) const
{
    if (!HasControls())
        return;
    for (INT_PTR i = 0; i < m_arrIds.GetSize(); ++i)
    {
        if (CWnd* pControl = m_pDialog->GetDlgItem(m_arrIds[i]))
            function(*pControl);
    }
}
