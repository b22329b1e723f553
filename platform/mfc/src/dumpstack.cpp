// AfxDumpStack: the calling thread's stack as text.

#include <afxwin.h>

#include <dbghelp.h>

#include <memory>
#include <string>
#include <type_traits>

namespace
{
constexpr int maxFrames = 100;
constexpr ULONG maxSymbolName = 256; ///< characters

/// The debug help library, loaded when a stack is dumped and not before. Serves one dump on one thread.
class CDebugHelp
{
public:
    CDebugHelp() : m_library(::LoadLibrary(L"dbghelp.dll"))
    {
        if (m_library == nullptr)
            return;
        Find(m_initialize, "SymInitialize");
        Find(m_cleanup, "SymCleanup");
        Find(m_setOptions, "SymSetOptions");
        Find(m_fromAddress, "SymFromAddr");
        Find(m_walk, "StackWalk64");
        Find(m_functionTable, "SymFunctionTableAccess64");
        Find(m_moduleBase, "SymGetModuleBase64");
        if (m_initialize == nullptr || m_cleanup == nullptr || m_walk == nullptr)
            return;
        if (m_setOptions != nullptr)
            m_setOptions(SYMOPT_UNDNAME | SYMOPT_DEFERRED_LOADS);
        m_ready = m_initialize(::GetCurrentProcess(), nullptr, TRUE) != FALSE;
    }

    ~CDebugHelp()
    {
        if (m_ready)
            m_cleanup(::GetCurrentProcess());
        if (m_library != nullptr)
            ::FreeLibrary(m_library);
    }

    CDebugHelp(const CDebugHelp&) = delete;
    CDebugHelp& operator=(const CDebugHelp&) = delete;

    bool IsReady() const { return m_ready; }

    bool Walk(STACKFRAME64& frame, CONTEXT& context) const
    {
        return m_walk(IMAGE_FILE_MACHINE_AMD64, ::GetCurrentProcess(), ::GetCurrentThread(), &frame, &context,
                      nullptr, m_functionTable, m_moduleBase, nullptr) != FALSE;
    }

    /// "symbol + offset", or an empty text where no symbol is known.
    std::string SymbolAt(DWORD64 address) const
    {
        alignas(SYMBOL_INFO) char buffer[sizeof(SYMBOL_INFO) + maxSymbolName] = {};
        auto* const symbol = reinterpret_cast<SYMBOL_INFO*>(buffer);
        symbol->SizeOfStruct = sizeof(SYMBOL_INFO);
        symbol->MaxNameLen = maxSymbolName;
        DWORD64 offset = 0;
        if (m_fromAddress == nullptr || !m_fromAddress(::GetCurrentProcess(), address, &offset, symbol))
            return {};
        char text[maxSymbolName + 32];
        snprintf(text, sizeof text, "%s + 0x%llx", symbol->Name, offset);
        return text;
    }

private:
    template <class Function>
    void Find(Function& function, const char* name)
    {
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(m_library, name)));
    }

    HMODULE m_library;
    bool m_ready = false;
    decltype(&::SymInitialize) m_initialize = nullptr;
    decltype(&::SymCleanup) m_cleanup = nullptr;
    decltype(&::SymSetOptions) m_setOptions = nullptr;
    decltype(&::SymFromAddr) m_fromAddress = nullptr;
    decltype(&::StackWalk64) m_walk = nullptr;
    decltype(&::SymFunctionTableAccess64) m_functionTable = nullptr;
    decltype(&::SymGetModuleBase64) m_moduleBase = nullptr;
};

struct CModulePlace
{
    std::string name = "(unknown)"; ///< file name without path
    DWORD64 offset = 0;
};

CModulePlace FindModule(DWORD64 address)
{
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!::GetModuleHandleExA(flags, reinterpret_cast<LPCSTR>(address), &module))
        return {"(unknown)", address};
    char path[MAX_PATH] = {};
    ::GetModuleFileNameA(module, path, MAX_PATH);
    const char* const slash = strrchr(path, '\\');
    return {slash != nullptr ? slash + 1 : path, address - reinterpret_cast<DWORD64>(module)};
}

std::string Describe(const CDebugHelp& help, DWORD64 address)
{
    const CModulePlace place = FindModule(address);
    const std::string symbol = help.SymbolAt(address);
    char text[MAX_PATH + 64];
    if (symbol.empty())
        snprintf(text, sizeof text, "%016llx %s + 0x%llx", address, place.name.c_str(), place.offset);
    else
        snprintf(text, sizeof text, "%016llx %s! ", address, place.name.c_str());
    return text + symbol + "\r\n";
}

std::string DescribeStack(const CONTEXT& start)
{
    const CDebugHelp help;
    if (!help.IsReady())
        return "The stack cannot be walked: dbghelp.dll is missing.\r\n";

    CONTEXT context = start;
    STACKFRAME64 frame{};
    frame.AddrPC = {start.Rip, 0, AddrModeFlat};
    frame.AddrFrame = {start.Rbp, 0, AddrModeFlat};
    frame.AddrStack = {start.Rsp, 0, AddrModeFlat};

    std::string text;
    for (int count = 0; count < maxFrames && help.Walk(frame, context) && frame.AddrPC.Offset != 0; ++count)
        text += Describe(help, frame.AddrPC.Offset);
    return text;
}

void PutOnClipboard(const std::string& text)
{
    if (!::OpenClipboard(nullptr))
        return; // another program holds it; the dump is no reason to wait
    ::EmptyClipboard();
    if (const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, text.size() + 1))
    {
        memcpy(::GlobalLock(memory), text.c_str(), text.size() + 1);
        ::GlobalUnlock(memory);
        if (::SetClipboardData(CF_TEXT, memory) == nullptr)
            ::GlobalFree(memory); // otherwise it is the clipboard's
    }
    ::CloseClipboard();
}
} // namespace

void AFXAPI AfxDumpStack(DWORD dwTarget)
{
    CONTEXT context{};
    ::RtlCaptureContext(&context);
    const std::string text =
        "Stack of the thread, innermost frame first:\r\n" + DescribeStack(context) + "End of the stack.\r\n";
    if ((dwTarget & AFX_STACK_DUMP_TARGET_TRACE) != 0)
        TRACE("%s", text.c_str());
    if ((dwTarget & AFX_STACK_DUMP_TARGET_ODS) != 0)
        ::OutputDebugStringA(text.c_str());
    if ((dwTarget & AFX_STACK_DUMP_TARGET_CLIPBOARD) != 0)
        PutOnClipboard(text);
}
