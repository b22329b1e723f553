#pragma once
// An array of objects held by value, on the framework's CArray.
//
//     OCArray<CString> marks;
//     marks.Add(L"HEA 160");
//     OCArray<CString> copy = marks;    // as the framework's own array does not
//
//     OCArray<CExtButton> buttons;      // objects that cannot be copied, too, as long as nobody copies the array
//     buttons.SetSize(3);
//
// Elements are constructed and destroyed in place. The index of an element is checked as CArray checks it. An array
// that grows moves its elements: windows are attached to their objects only when the array has its final size.

#include <afxtempl.h>

#include <type_traits>

template <class T>
class OCArray : public CArray<T, const T&>
{
public:
    OCArray() = default;
    OCArray(const OCArray& src) requires std::is_copy_assignable_v<T> : CArray<T, const T&>()
    {
        this->Copy(src);
    }
    OCArray& operator=(const OCArray& src) requires std::is_copy_assignable_v<T>
    {
        this->Copy(src);
        return *this;
    }
};
