#pragma once
// The English catalogue that stands beside the programs, for the length of a scope.

#include "ChildProcess.h"
#include "OtherText.h"

namespace owtest
{
struct EnglishTexts : OtherText
{
    EnglishTexts()
        : OtherText(ContentsOf(std::filesystem::path(ProgramPath()).replace_filename(L"locale/en.po")))
    {
    }
};
} // namespace owtest
