// Run-time class information, and the checks that debug builds are made of.

#include <afxcoll.h>

#include "Testing.h"

class CTestShape : public CObject
{
    DECLARE_DYNAMIC(CTestShape)
};

class CTestCircle : public CTestShape
{
    DECLARE_DYNCREATE(CTestCircle)
};

class CTestFailing : public CObject
{
    DECLARE_DYNCREATE(CTestFailing)

public:
    CTestFailing() { AfxThrowMemoryException(); }
};

IMPLEMENT_DYNAMIC(CTestShape, CObject)
IMPLEMENT_DYNCREATE(CTestCircle, CTestShape)
IMPLEMENT_DYNCREATE(CTestFailing, CObject)

TEST(RuntimeClass, KnowsItsObjectsAndItsBases)
{
    CTestCircle circle;
    CTestShape shape;
    EXPECT_STREQ(circle.GetRuntimeClass()->m_lpszClassName, "CTestCircle");
    EXPECT_EQ(circle.GetRuntimeClass()->m_nObjectSize, int(sizeof(CTestCircle)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CException)));
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestShape, &circle), &circle);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestCircle, &shape), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestShape, static_cast<CObject*>(nullptr)), nullptr);
}

TEST(RuntimeClass, IsFoundAndMakesObjectsByNameWhileItIsListed)
{
    EXPECT_EQ(CRuntimeClass::FromName(L"CStringArray"), RUNTIME_CLASS(CStringArray)) << "of another module";
    EXPECT_EQ(CRuntimeClass::FromName("CNoSuchClass"), nullptr);
    const std::unique_ptr<CObject> object(CRuntimeClass::CreateObject("CTestCircle"));
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->GetRuntimeClass(), RUNTIME_CLASS(CTestCircle));
    EXPECT_EQ(STATIC_DOWNCAST(CTestCircle, object.get()), object.get());
    EXPECT_EQ(CRuntimeClass::CreateObject(L"CNoSuchClass"), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CTestShape)->CreateObject(), nullptr) << "declared without creation";
    EXPECT_EQ(RUNTIME_CLASS(CTestFailing)->CreateObject(), nullptr);

    CRuntimeClass temporary = {"CTestTemporary", sizeof(CObject), 0xFFFF, nullptr, &CObject::GetThisClass};
    {
        const AFX_CLASSINIT entry(&temporary);
        EXPECT_EQ(CRuntimeClass::FromName("CTestTemporary"), &temporary);
    }
    EXPECT_EQ(CRuntimeClass::FromName("CTestTemporary"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CTestCircle"), RUNTIME_CLASS(CTestCircle));
}

TEST(Diagnostics, MemoryIsValidUpToAPageWithoutAccess)
{
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_FALSE(AfxIsValidAddress("", UINTPTR_MAX));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCWSTR>(nullptr)));
    BYTE* const pages = static_cast<BYTE*>(VirtualAlloc(nullptr, 8192, MEM_RESERVE, PAGE_NOACCESS));
    ASSERT_NE(VirtualAlloc(pages, 4096, MEM_COMMIT, PAGE_READWRITE), nullptr);
    const auto text = reinterpret_cast<LPCSTR>(pages);
    memset(pages, 'x', 4096);
    EXPECT_TRUE(AfxIsValidAddress(pages, 4096) && AfxIsValidString(text, 4096));
    EXPECT_FALSE(AfxIsValidAddress(pages, 4097) || AfxIsValidString(text, 4097));
    EXPECT_FALSE(AfxIsValidString(text)) << "it has no end that can be read";
    EXPECT_FALSE(AfxIsValidString(reinterpret_cast<LPCWSTR>(text + 1))) << "nor half a character of one";
    pages[4095] = 0;
    EXPECT_TRUE(AfxIsValidString(text));
    DWORD before = 0;
    ASSERT_TRUE(VirtualProtect(pages, 4096, PAGE_READONLY, &before));
    EXPECT_TRUE(AfxIsValidAddress(pages, 4096, FALSE) && !AfxIsValidAddress(pages, 4096, TRUE));
    VirtualFree(pages, 0, MEM_RELEASE);
}

TEST(Diagnostics, DumpsToAFile)
{
    CMemFile file;
    CDumpContext dump(&file);
    CStringArray array;
    array.SetSize(3);
    dump << array << "narrow " << L"wide " << LPCSTR() << 5 << " " << ~0ull << " " << 2.5 << " " << BYTE(7);
    dump.DumpAsHex(255).HexDump(L"#", reinterpret_cast<BYTE*>(const_cast<char*>("ABC")), 3, 2);

    CString text;
    file.SeekToBegin();
    file.Read(text.GetBufferSetLength(int(file.GetLength() / sizeof(WCHAR))), UINT(file.GetLength()));
    EXPECT_EQ(text.Find(L"a CStringArray at $"), 0) << CStringA(text).GetString();
    EXPECT_GT(
        text.Find(L"with 3 elements\nnarrow wide (nullptr)5 18446744073709551615 2.5 70xFF# 41 42\n# 43\n"),
        0)
        << CStringA(text).GetString();
}
