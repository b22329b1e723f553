#pragma once
// The translations of one catalogue, found by hash.

#include "Translator.h"

#include <string>
#include <string_view>
#include <unordered_map>

class ClCatalogue
{
public:
    /// Reads a .po file. Null, with the reason in `error`, if it is not sound.
    static std::unique_ptr<ClCatalogue> Read(LPCWSTR pszPath, ClCatalogueError& error);

    int Count() const { return static_cast<int>(m_texts.size()); }

    /// The translation of a key, or null.
    const std::wstring* Find(std::wstring_view key) const;

    /// Key of a text under a context.
    static std::wstring ContextKey(std::wstring_view context, std::wstring_view text);

private:
    struct SHash
    {
        using is_transparent = void;
        size_t operator()(std::wstring_view key) const { return std::hash<std::wstring_view>()(key); }
    };

    std::unordered_map<std::wstring, std::wstring, SHash, std::equal_to<>> m_texts;
};
