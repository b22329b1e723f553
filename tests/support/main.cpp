// The entry point of every test program: an MFC application in a console program.

#include "ChildScenario.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
CWinApp theApp;
}

int main(int argc, char** argv)
{
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOW))
    {
        std::fputs("AfxWinInit failed\n", stderr);
        return 1;
    }
    if (argc == 3 && std::string_view(argv[1]) == owtest::kChildArgument)
        return owtest::RunScenario(argv[2]);

    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
