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
volatile int s_three = 3; ///< out of the optimiser's sight, as the pointers below are

void WriteBehindTheEnd()
{
    char* volatile pBlock = new char[24];
    pBlock[24] = 1;
    delete[] pBlock;
}

void DeleteTwice()
{
    char* volatile pBlock = new char[240];
    delete[] pBlock;
    delete[] pBlock;
}

void IndexBehindTheEnd()
{
    std::vector<int> items(3);
    items[s_three] = 1;
}

void Overflow()
{
    s_three = INT_MAX - s_three + 4;
}
} // namespace

int main(int argc, char** argv)
{
    const std::string_view fault = argc == 2 ? argv[1] : "";
    if (fault == "heap")
        WriteBehindTheEnd();
    else if (fault == "twice")
        DeleteTwice();
    else if (fault == "container")
        IndexBehindTheEnd();
    else if (fault == "arithmetic")
        Overflow();
    std::puts("not caught");
    return 0;
}
