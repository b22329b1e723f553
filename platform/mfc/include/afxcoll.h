#pragma once
#define __AFXCOLL_H__ // asked for by the headers that wizards make
// The ready-made collections: the templates of afxtempl.h for the common element types, each with run-time
// class information of its own. Pointers and objects in them are not owned.

#include "afxtempl.h"

class AFX_CORE_CLASS CByteArray : public CArray<BYTE, BYTE>
{
    DECLARE_DYNAMIC(CByteArray)
};

class AFX_CORE_CLASS CWordArray : public CArray<WORD, WORD>
{
    DECLARE_DYNAMIC(CWordArray)
};

class AFX_CORE_CLASS CDWordArray : public CArray<DWORD, DWORD>
{
    DECLARE_DYNAMIC(CDWordArray)
};

class AFX_CORE_CLASS CUIntArray : public CArray<UINT, UINT>
{
    DECLARE_DYNAMIC(CUIntArray)
};

class AFX_CORE_CLASS CPtrArray : public CArray<void*, void*>
{
    DECLARE_DYNAMIC(CPtrArray)
};

class AFX_CORE_CLASS CObArray : public CArray<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CObArray)
};

class AFX_CORE_CLASS CStringArray : public CArray<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringArray)
};

class AFX_CORE_CLASS CPtrList : public CList<void*, void*>
{
    DECLARE_DYNAMIC(CPtrList)

public:
    using CList<void*, void*>::CList;
};

class AFX_CORE_CLASS CObList : public CList<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CObList)

public:
    using CList<CObject*, CObject*>::CList;
};

class AFX_CORE_CLASS CStringList : public CList<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringList)

public:
    using CList<CString, const CString&>::CList;
};

class AFX_CORE_CLASS CMapPtrToPtr : public CMap<void*, void*, void*, void*>
{
    DECLARE_DYNAMIC(CMapPtrToPtr)

public:
    using CMap<void*, void*, void*, void*>::CMap;

    void* GetValueAt(void* key) const; ///< null if there is no such key
};

class AFX_CORE_CLASS CMapPtrToWord : public CMap<void*, void*, WORD, WORD>
{
    DECLARE_DYNAMIC(CMapPtrToWord)

public:
    using CMap<void*, void*, WORD, WORD>::CMap;
};

class AFX_CORE_CLASS CMapWordToOb : public CMap<WORD, WORD, CObject*, CObject*>
{
    DECLARE_DYNAMIC(CMapWordToOb)

public:
    using CMap<WORD, WORD, CObject*, CObject*>::CMap;
};

class AFX_CORE_CLASS CMapWordToPtr : public CMap<WORD, WORD, void*, void*>
{
    DECLARE_DYNAMIC(CMapWordToPtr)

public:
    using CMap<WORD, WORD, void*, void*>::CMap;
};

// LookupKey answers the map's own copy of a key, which is good until the key is removed.

class AFX_CORE_CLASS CMapStringToPtr : public CMap<CString, LPCTSTR, void*, void*>
{
    DECLARE_DYNAMIC(CMapStringToPtr)

public:
    using CMap<CString, LPCTSTR, void*, void*>::CMap;

    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const;
    UINT HashKey(LPCTSTR key) const { return ::HashKey<LPCTSTR>(key); }
};

class AFX_CORE_CLASS CMapStringToOb : public CMap<CString, LPCTSTR, CObject*, CObject*>
{
    DECLARE_DYNAMIC(CMapStringToOb)

public:
    using CMap<CString, LPCTSTR, CObject*, CObject*>::CMap;

    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const;
    UINT HashKey(LPCTSTR key) const { return ::HashKey<LPCTSTR>(key); }
};

class AFX_CORE_CLASS CMapStringToString : public CMap<CString, LPCTSTR, CString, LPCTSTR>
{
    DECLARE_DYNAMIC(CMapStringToString)

public:
    using CMap<CString, LPCTSTR, CString, LPCTSTR>::CMap;

    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const;
    UINT HashKey(LPCTSTR key) const { return ::HashKey<LPCTSTR>(key); }
};
