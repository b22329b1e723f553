// Commits the fault that is asked for. Each is one that `./run check` must catch, or it would be no check.
//
//     faults heap|twice|container|arithmetic
//
// Prints "not caught" when it comes to its end.

#include <windows.h>

#include <climits>
#include <cstdio>
#include <string_view>
#include <vector>

namespace
{
volatile int s_three = 3; ///< out of the optimiser's sight, as the pointer below is
}

int main(int argc, char** argv)
{
    const std::string_view fault = argc == 2 ? argv[1] : "";
    char* volatile pBlock = new char[240];
    if (fault == "heap")
        pBlock[240] = 1;
    if (fault == "heap" || fault == "twice")
        delete[] pBlock;
    if (fault == "twice")
        delete[] pBlock;
    if (fault == "container")
        std::vector<int>(3)[s_three] = 1;
    if (fault == "arithmetic")
        s_three = INT_MAX - s_three + 4;
    std::puts("not caught");
    return 0;
}
