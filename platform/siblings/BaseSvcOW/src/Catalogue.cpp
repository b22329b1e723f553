#include "Catalogue.h"

#include "PoReader.h"

#include <filesystem>
#include <fstream>
#include <iterator>

static bool ReadWholeFile(LPCWSTR pszPath, std::string& bytes)
{
    std::ifstream file(std::filesystem::path(pszPath), std::ios::binary);
    if (!file)
        return false;
    bytes.assign(std::istreambuf_iterator<char>(file), {});
    return !file.bad();
}

std::unique_ptr<ClCatalogue> ClCatalogue::Read(LPCWSTR pszPath, ClCatalogueError& error)
{
    error = {pszPath, 0, CString()};
    std::string bytes;
    if (!pszPath || !ReadWholeFile(pszPath, bytes))
    {
        error.strWhat = L"the file cannot be read";
        return nullptr;
    }
    try
    {
        auto pCatalogue = std::make_unique<ClCatalogue>();
        for (SPoMessage& message : ReadPoMessages(bytes))
        {
            std::wstring key = message.context ? ContextKey(*message.context, message.text) : message.text;
            pCatalogue->m_texts.emplace(std::move(key), std::move(message.translation));
        }
        return pCatalogue;
    }
    catch (const SPoError& fault)
    {
        error.nLine = fault.nLine;
        error.strWhat = fault.what.c_str();
        return nullptr;
    }
}

const std::wstring* ClCatalogue::Find(std::wstring_view key) const
{
    const auto it = m_texts.find(key);
    return it == m_texts.end() ? nullptr : &it->second;
}

std::wstring ClCatalogue::ContextKey(std::wstring_view context, std::wstring_view text)
{
    std::wstring key(context);
    key += L'\x4'; // cannot stand in a text that is shown
    key += text;
    return key;
}
