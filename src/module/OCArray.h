#pragma once
// An array of objects held by value: CArray with copying.
//
// ```cpp
//     OCArray<CString> names;
//     names.SetSize(3);                   // three empty strings, constructed in place
//     OCArray<CString> copy = names;      // element by element
//
//     OCArray<CExtButton> buttons;        // windows: they cannot be copied, and this array neither
//     buttons.SetSize(nButtons);
// ```
//
// The array owns its elements: they are constructed when it grows and destroyed when it shrinks or goes. A
// bad index throws CInvalidArgException, and so does a negative size; without memory CMemoryException is
// thrown and the array stays as it was.
//
// Where elements live. Growing beyond the memory at hand, FreeExtra, InsertAt and RemoveAt carry elements
// over to other places; windows must not be carried while they are attached, as the framework knows them by
// their address. They stay where they are if the array is sized once, from empty, and is then only shortened
// by SetSize: call RemoveAll before the next size.

#include <afxtempl.h>

#include <type_traits>

template <class T>
class OCArray : public CArray<T, const T&>
{
public:
    OCArray() = default;
    OCArray(const OCArray& other) requires std::is_copy_assignable_v<T> : CArray<T, const T&>()
    {
        this->Copy(other);
    }
    OCArray& operator=(const OCArray& other) requires std::is_copy_assignable_v<T>
    {
        this->Copy(other); // onto itself it does nothing
        return *this;
    }
};
