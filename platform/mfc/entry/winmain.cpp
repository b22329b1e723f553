// The entry point of a program: everything begins with its global CWinApp.

#include <afxwin.h>

extern "C" int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previous, LPWSTR commandLine, int showCommand)
{
    return AfxWinMain(instance, previous, commandLine, showCommand);
}
