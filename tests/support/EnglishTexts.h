#pragma once
// The English catalogue that stands beside the programs, for the length of a scope.

#include <afxwin.h>

#include <Translator.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace owtest
{
class EnglishTexts
{
public:
    EnglishTexts()
    {
        wchar_t program[MAX_PATH] = L"";
        ::GetModuleFileNameW(nullptr, program, MAX_PATH);
        const auto path = std::filesystem::path(program).parent_path() / L"locale" / L"en.po";
        EXPECT_TRUE(gOtLang.Load(path.c_str()));
    }
    ~EnglishTexts() { gOtLang.Unload(); }
    EnglishTexts(const EnglishTexts&) = delete;
    EnglishTexts& operator=(const EnglishTexts&) = delete;
};
} // namespace owtest
