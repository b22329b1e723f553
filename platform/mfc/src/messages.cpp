#include "messages.h"

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

// In file messages %1 is the file.
const Message messages[] = {
    {FileMessage(CFileException::none), _T("There was no error.")},
    {FileMessage(CFileException::genericException), _T("Something unexpected went wrong with %1.")},
    {FileMessage(CFileException::fileNotFound), _T("The file %1 does not exist.")},
    {FileMessage(CFileException::badPath), _T("The path of %1 is not valid.")},
    {FileMessage(CFileException::tooManyOpenFiles), _T("%1 cannot be opened: too many files are open.")},
    {FileMessage(CFileException::accessDenied), _T("Access to %1 is denied.")},
    {FileMessage(CFileException::invalidFile), _T("%1 was used through a file handle that is not valid.")},
    {FileMessage(CFileException::removeCurrentDir), _T("%1 is the current folder and cannot be removed.")},
    {FileMessage(CFileException::directoryFull), _T("There is no room for %1 in its folder.")},
    {FileMessage(CFileException::badSeek), _T("The position in %1 cannot be reached.")},
    {FileMessage(CFileException::hardIO), _T("The device reported an error while %1 was used.")},
    {FileMessage(CFileException::sharingViolation), _T("%1 is in use by another program.")},
    {FileMessage(CFileException::lockViolation), _T("A part of %1 is locked.")},
    {FileMessage(CFileException::diskFull), _T("The disk was full while %1 was written.")},
    {FileMessage(CFileException::endOfFile), _T("The end of %1 was reached too early.")},
    {AFX_IDS_MEMORY_EXCEPTION, _T("There is not enough memory.")},
    {AFX_IDS_NOT_SUPPORTED_EXCEPTION, _T("This operation is not supported.")},
    {AFX_IDS_RESOURCE_EXCEPTION, _T("A required resource is missing.")},
    {AFX_IDS_USER_EXCEPTION, _T("The operation could not be completed.")},
    {AFX_IDS_INVALID_ARG_EXCEPTION, _T("An argument was not valid.")},
    {AFX_IDP_NO_ERROR_AVAILABLE, _T("An error occurred that has no description.")},
    {AFX_IDS_UNNAMED_FILE, _T("an unnamed file")},
};
} // namespace

LPCTSTR AfxFindMessage(UINT nID)
{
    for (const Message& message : messages)
    {
        if (message.nID == nID)
        {
            return message.lpszText;
        }
    }
    return nullptr;
}
