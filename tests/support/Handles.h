#pragma once
// Counts of what the process holds, for tests that open and close things many times.

#include <ostream>

#include <windows.h>

namespace owtest
{
/// Handles of the process at this moment.
struct HandleCount
{
    int gdi = 0;     ///< GDI objects of all types
    int windows = 0; ///< windows of this process, top-level, child and message-only
    int user = 0;    ///< menus, icons, cursors and accelerator tables; windows, too, where the system counts

    friend bool operator==(const HandleCount&, const HandleCount&) = default;
    friend std::ostream& operator<<(std::ostream& out, const HandleCount& count)
    {
        return out << count.gdi << " GDI objects, " << count.windows << " windows, " << count.user
                   << " user objects";
    }
};

HandleCount CountHandles();

/// GDI objects of one type: 0x04 region, 0x05 bitmap, 0x0A font, 0x10 brush, 0x30 pen, 0x01 device context;
/// 0 all.
int CountGdiObjects(int type);

/// Bytes in use on the process heap and the C heap.
size_t CountHeapBytes();
} // namespace owtest
