#pragma once
// Puts a function of the test in place of one that a module imports, for the length of a scope: for what has no
// other trace, such as a program that the system would start.
//
//     const owtest::ImportStandIn noShell(L"DialogControlsOW.dll", "ShellExecuteExW", &NoteAddress);

#include <windows.h>

#include <cstring>

#include <gtest/gtest.h>

namespace owtest
{
class ImportStandIn
{
public:
    template <class Function>
    ImportStandIn(const wchar_t* module, const char* name, Function* standIn)
        : m_slot(SlotOf(::GetModuleHandleW(module), name))
    {
        EXPECT_TRUE(m_slot) << name << " is not imported";
        m_before = m_slot ? *m_slot : 0;
        Put(reinterpret_cast<ULONG_PTR>(standIn));
    }
    ~ImportStandIn() { Put(m_before); }
    ImportStandIn(const ImportStandIn&) = delete;
    ImportStandIn& operator=(const ImportStandIn&) = delete;

private:
    void Put(ULONG_PTR function)
    {
        DWORD access = 0;
        if (m_slot && ::VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &access))
            *m_slot = function;
    }

    /// Where the loader has put the function's address; null if the module does not import it by name.
    static ULONG_PTR* SlotOf(HMODULE module, const char* name)
    {
        auto* const base = reinterpret_cast<BYTE*>(module);
        const auto* head = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
        const auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + head->e_lfanew);
        const DWORD imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
        for (auto* dll = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports); dll->Name; ++dll)
        {
            const auto* names = reinterpret_cast<ULONG_PTR*>(base + dll->OriginalFirstThunk);
            auto* slots = reinterpret_cast<ULONG_PTR*>(base + dll->FirstThunk);
            for (; *names; ++names, ++slots)
            {
                constexpr int hint = sizeof(WORD); // in front of the name
                const auto* imported = reinterpret_cast<char*>(base + *names + hint);
                if (!IMAGE_SNAP_BY_ORDINAL(*names) && std::strcmp(imported, name) == 0)
                    return slots;
            }
        }
        return nullptr;
    }

    ULONG_PTR* m_slot;
    ULONG_PTR m_before = 0;
};
} // namespace owtest
