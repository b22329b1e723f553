#pragma once
// Reads the entries of a gettext .po file.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One translated text.
struct SPoMessage
{
    std::optional<std::wstring> context;
    std::wstring text;
    std::wstring translation;
};

/// Thrown for the first fault of a file.
struct SPoError
{
    int nLine; ///< counted from 1
    std::wstring what;
};

/// The entries that have a translation, in the order of the file: without the header and the fuzzy and
/// obsolete ones. `bytes` is the file as it stands, UTF-8 with or without a byte order mark.
std::vector<SPoMessage> ReadPoMessages(std::string_view bytes);
