#include <afxwin.h>

#include "PictureIndex.h"

namespace
{
constexpr char kHead[] = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>The gallery of DialogControlsOW</title><style>
body { font: 15px/1.5 "Segoe UI", sans-serif; margin: 2em auto; max-width: 1100px; padding: 0 1em; color: #222 }
nav { columns: 4 10em; margin-bottom: 2em }
nav a { display: block }
h2 { border-top: 1px solid #ccc; padding-top: 1em }
img { max-width: 100%; border: 1px solid #ccc }
td { padding: 0 2em 0 0; font: 13px/1.5 Consolas, monospace }
</style></head><body>
<h1>The gallery of DialogControlsOW</h1>
<p>Each page as a user left it who worked on it with mouse and keyboard, and the calls of handlers on the way.</p>
)";

std::string Utf8(const std::wstring& text)
{
    std::string bytes(3 * text.size() + 1, '\0');
    bytes.resize(::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                       static_cast<int>(bytes.size()), nullptr, nullptr));
    return bytes;
}

std::string Html(const std::wstring& text)
{
    std::string html;
    for (char ch : Utf8(text))
    {
        switch (ch)
        {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += ch;
        }
    }
    return html;
}

std::string Calls(const std::vector<HandlerCall>& calls)
{
    if (calls.empty())
        return {};
    std::string html = "<table>\n";
    for (const HandlerCall& call : calls)
        html += "<tr><td>" + Html(call.control) + "</td><td>" + Html(call.call) + "</td></tr>\n";
    return html + "</table>\n";
}
} // namespace

void PictureIndex::Add(const std::wstring& title, const std::wstring& file, std::vector<HandlerCall> calls)
{
    m_pictures.push_back({title, file, std::move(calls)});
}

bool PictureIndex::Save(const std::wstring& path) const
{
    std::string html = std::string(kHead) + "<nav>\n";
    for (const Picture& picture : m_pictures)
        html += "<a href=\"#" + Html(picture.file) + "\">" + Html(picture.title) + "</a>\n";
    html += "</nav>\n";
    for (const Picture& picture : m_pictures)
    {
        html += "<h2 id=\"" + Html(picture.file) + "\">" + Html(picture.title) + "</h2>\n<p><img src=\"" +
                Html(picture.file) + "\" alt=\"\"></p>\n" + Calls(picture.calls);
    }
    html += "</body></html>\n";

    CFile file;
    if (!file.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite))
        return false;
    file.Write(html.data(), static_cast<UINT>(html.size()));
    file.Close();
    return true;
}
