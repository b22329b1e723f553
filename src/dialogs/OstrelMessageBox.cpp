#include <afxwin.h>

#include "dialogs/OstrelMessageBox.h"

#include "dialogs/OstrelMessageBoxA.h"
#include "module/AssertReport.h"
#include "module/HostResourceScope.h"

#include <Translator.h>

namespace
{
constexpr unsigned int kButtonBits = 0x0F;
constexpr unsigned int kIconBits = 0xF0;

/// The buttons of a standard box. Escape answers for the last one.
struct StandardButtons
{
    unsigned int nType; ///< MB_OKCANCEL and the like
    int nCount;
    const wchar_t* captions[3];
    int results[3];
    int nLine; ///< of the report of a button that the box does not have
};

// clang-format off
constexpr StandardButtons kStandardButtons[] = {
    {MB_OKCANCEL,    2, {L"", L"Cancel"},            {IDOK, IDCANCEL},        324},
    {MB_YESNO,       2, {L"Yes", L"No"},             {IDYES, IDNO},           330},
    {MB_YESNOCANCEL, 3, {L"Yes", L"No", L"Cancel"},  {IDYES, IDNO, IDCANCEL}, 337},
};
// clang-format on

/// Null for a box with OK alone.
const StandardButtons* FindButtons(unsigned int uType)
{
    for (const StandardButtons& buttons : kStandardButtons)
    {
        if (buttons.nType == (uType & kButtonBits))
            return &buttons;
    }
    return nullptr;
}

int ResultOf(const StandardButtons& buttons, int nPressed)
{
    if (nPressed > buttons.nCount)
        INTERNAL_ERROR_AT(L"Nedozvoljena vrednost.", kMessageBoxSource, buttons.nLine);
    return buttons.results[nPressed - 1];
}

int RunOkBox(COstrelMessageBoxA& box)
{
    box.DoModal();
    return IDOK;
}

int RunStandardBox(COstrelMessageBoxA& box, const StandardButtons& buttons)
{
    for (int i = 0; i < buttons.nCount; ++i)
        box.SetButtonText(i + 1, buttons.captions[i]);
    box.SetPressedButton(buttons.nCount);
    return ResultOf(buttons, static_cast<int>(box.DoModal()));
}

/// The system's text for an error code, on the system's heap; null for a code that it does not know.
struct FreeLocal
{
    void operator()(wchar_t* pszText) const { ::LocalFree(pszText); }
};
using SystemText = std::unique_ptr<wchar_t, FreeLocal>;

SystemText FormatSystemError(unsigned long nError)
{
    wchar_t* pszText = nullptr;
    ::FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS |
                         FORMAT_MESSAGE_FROM_SYSTEM,
                     nullptr, nError, 0, reinterpret_cast<wchar_t*>(&pszText), 0, nullptr);
    return SystemText(pszText);
}

/// `pszText` has a %d for the code.
int ShowCheckError(const wchar_t* pszText, int nCode)
{
    CString strText;
    strText.Format(gOtLang.Do(pszText), nCode);
    COstrelMessageBox::MessageBoxW(strText, L"Greska", MB_ICONERROR);
    return 0;
}
} // namespace

COstrelMessageBox::COstrelMessageBox(CWnd* pParent) : m_pBox(std::make_unique<COstrelMessageBoxA>(pParent))
{
}

COstrelMessageBox::~COstrelMessageBox() = default;

void COstrelMessageBox::Set(const CString& strText, const CString& strCaption)
{
    m_pBox->Set(strText, strCaption);
}

void COstrelMessageBox::SetButtonText(int nButton, const CString& strText)
{
    m_pBox->SetButtonText(nButton, strText);
}

int COstrelMessageBox::DoModal()
{
    if (!m_pBox->IsSet())
        return 0;
    const CHostResourceScope resources;
    m_pBox->SetPressedButton(0); // it may have been shown before
    return static_cast<int>(m_pBox->DoModal());
}

int COstrelMessageBox::MessageBoxW(const CString& strText, const CString& strCaption, unsigned int uType)
{
    const CHostResourceScope resources;
    COstrelMessageBoxA box(CWnd::GetFocus());
    box.Set(strText, strCaption);
    box.SetIconType(uType & kIconBits);
    const StandardButtons* pButtons = FindButtons(uType);
    return pButtons ? RunStandardBox(box, *pButtons) : RunOkBox(box);
}

// Here all of `uType` is the icon type: the buttons are told by their texts.
int COstrelMessageBox::MessageBoxW(const CString& strText, const CString& strCaption, unsigned int uType,
                                   const CString& b1, const CString& b2, const CString& b3, const CString& b4)
{
    const CHostResourceScope resources;
    COstrelMessageBoxA box(CWnd::GetFocus());
    box.Set(strText, strCaption);
    box.SetIconType(uType);
    int nButton = 0;
    for (const CString* pText : {&b1, &b2, &b3, &b4})
    {
        ++nButton;
        if (pText->IsEmpty())
            continue;
        box.SetButtonText(nButton, *pText);
        box.SetPressedButton(nButton);
    }
    return static_cast<int>(box.DoModal());
}

int COstrelMessageBox::ErrorBox(unsigned long nError)
{
    const SystemText text = FormatSystemError(nError);
    ::MessageBoxW(nullptr, text.get(), gOtLang.Do(L"Greska"), MB_ICONERROR | MB_TASKMODAL);
    return 0;
}

int COstrelMessageBox::ErrorBoxP(int nCode)
{
    return ShowCheckError(L"Provera zastite programa nije uspela (%d).", nCode);
}

int COstrelMessageBox::ErrorBoxL(int nCode)
{
    return ShowCheckError(L"Provera licence programa nije uspela (%d).", nCode);
}
