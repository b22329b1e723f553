#include <afxwin.h>

#include "module/DialogControlsInterface.h"

#include "buttons/BitmapBtnST.h"

#include <bit>

int CDialogControlsInterface::Setup(void*)
{
    return 1; // loading the library has done all there is to do
}

// Four tables of seven: the line and section-symbol pictures stay for the life of the process, as do the icons
// and the theme helper, because sibling modules go on using them after this call.
void CDialogControlsInterface::Cleanup(void*)
{
    CBitmapBtnSTKotnaLinija::UnloadBitmaps();
    CBitmapBtnSTTekstKote::UnloadBitmaps();
    CBitmapBtnSTSrafura::UnloadBitmaps();
    CBitmapBtnSTVisinskaKota::UnloadBitmaps();
}

void CDialogControlsInterface::InitDocument(void*)
{
}

AClassRegistry* CDialogControlsInterface::GetClassRegistry()
{
    return nullptr;
}

ACommandRegistry* CDialogControlsInterface::GetCommandRegistry()
{
    return nullptr;
}

OwDllInterface* OwGetDllInterface()
{
    static CDialogControlsInterface object;
    return &object;
}

// The host compares the answer with nothing that this library knows of, so it only has to be the same for the
// same question: the asked version is mixed with the four words below, of which nothing else makes use.
unsigned int acrxGetApiVersion(unsigned int nHostVersion)
{
    static constexpr unsigned int kVersionWords[] = {0x0017'0200u, 0x0C05'2008u, 0x5354'4545u, 0x4C44'4C47u};
    unsigned int mixed = nHostVersion;
    for (unsigned int word : kVersionWords)
        mixed = std::rotl(mixed ^ word, 7) * 0x9E37'79B1u;
    return mixed;
}
