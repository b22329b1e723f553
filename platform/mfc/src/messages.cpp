#include "messages.h"

#include <afxres.h>

namespace
{
struct Message
{
    UINT nID;
    LPCTSTR lpszText;
};

constexpr UINT FileMessage(int cause)
{
    return AFX_IDP_FILE_NONE + UINT(cause);
}

/// In file messages %1 is the file.
const Message messages[] = {
    {FileMessage(CFileException::none), L"There was no error."},
    {FileMessage(CFileException::genericException), L"Something unexpected went wrong with %1."},
    {FileMessage(CFileException::fileNotFound), L"The file %1 does not exist."},
    {FileMessage(CFileException::badPath), L"The path of %1 is not valid."},
    {FileMessage(CFileException::tooManyOpenFiles), L"%1 cannot be opened: too many files are open."},
    {FileMessage(CFileException::accessDenied), L"Access to %1 is denied."},
    {FileMessage(CFileException::invalidFile), L"%1 was used through a file handle that is not valid."},
    {FileMessage(CFileException::removeCurrentDir), L"%1 is the current folder and cannot be removed."},
    {FileMessage(CFileException::directoryFull), L"There is no room for %1 in its folder."},
    {FileMessage(CFileException::badSeek), L"The position in %1 cannot be reached."},
    {FileMessage(CFileException::hardIO), L"The device reported an error while %1 was used."},
    {FileMessage(CFileException::sharingViolation), L"%1 is in use by another program."},
    {FileMessage(CFileException::lockViolation), L"A part of %1 is locked."},
    {FileMessage(CFileException::diskFull), L"The disk was full while %1 was written."},
    {FileMessage(CFileException::endOfFile), L"The end of %1 was reached too early."},
    {AFX_IDS_MEMORY_EXCEPTION, L"There is not enough memory."},
    {AFX_IDS_NOT_SUPPORTED_EXCEPTION, L"This operation is not supported."},
    {AFX_IDS_RESOURCE_EXCEPTION, L"A required resource is missing."},
    {AFX_IDS_USER_EXCEPTION, L"The operation could not be completed."},
    {AFX_IDS_INVALID_ARG_EXCEPTION, L"An argument was not valid."},
    {AFX_IDP_NO_ERROR_AVAILABLE, L"An error occurred that has no description."},
    {AFX_IDP_FAILED_TO_LAUNCH_HELP, L"Help could not be shown."},
    {AFX_IDS_UNNAMED_FILE, L"an unnamed file"},
};
} // namespace

LPCTSTR AfxFindMessage(UINT nID)
{
    for (const Message& message : messages)
        if (message.nID == nID)
            return message.lpszText;
    return nullptr;
}
