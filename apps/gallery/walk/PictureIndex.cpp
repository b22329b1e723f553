#include <afxwin.h>

#include "PictureIndex.h"

namespace
{
constexpr char kHead[] = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><style>
body { font: 15px/1.5 "Segoe UI", sans-serif; margin: 2em auto; max-width: 1100px; padding: 0 1em; color: #222 }
nav { columns: 4 10em; margin-bottom: 2em }
nav a { display: block }
h2 { border-top: 1px solid #ccc; padding-top: 1em }
img { max-width: 100%; border: 1px solid #ccc }
td { padding: 0 2em 0 0; font: 13px/1.5 Consolas, monospace }
</style>)";

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

PictureIndex::PictureIndex(const std::wstring& title, const std::wstring& introduction)
    : m_title(title), m_introduction(introduction)
{
}

void PictureIndex::Add(const std::wstring& title, const std::vector<std::wstring>& files,
                       std::vector<HandlerCall> calls)
{
    m_entries.push_back({title, files, std::move(calls)});
}

bool PictureIndex::Save(const std::wstring& path) const
{
    const std::string title = Html(m_title);
    std::string html = kHead + ("<title>" + title) + "</title></head><body>\n<h1>" + title + "</h1>\n<p>" +
                       Html(m_introduction) + "</p>\n<nav>\n";
    for (const Entry& entry : m_entries)
        html += "<a href=\"#" + Html(entry.files.front()) + "\">" + Html(entry.title) + "</a>\n";
    html += "</nav>\n";
    for (const Entry& entry : m_entries)
    {
        html += "<h2 id=\"" + Html(entry.files.front()) + "\">" + Html(entry.title) + "</h2>\n";
        for (const std::wstring& file : entry.files)
            html += "<p><img src=\"" + Html(file) + "\" alt=\"" + Html(file) + "\"></p>\n";
        html += Calls(entry.calls);
    }
    html += "</body></html>\n";

    CFile file;
    if (!file.Open(path.c_str(), CFile::modeCreate | CFile::modeWrite))
        return false;
    file.Write(html.data(), static_cast<UINT>(html.size()));
    file.Close();
    return true;
}
