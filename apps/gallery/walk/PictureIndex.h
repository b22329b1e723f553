#pragma once
// The page of all pictures that a walk leaves: index.html, with what each shows, and the handler calls on the way.

#include <string>
#include <vector>

struct HandlerCall
{
    std::wstring control, call;
};

class PictureIndex
{
public:
    PictureIndex(const std::wstring& title, const std::wstring& introduction);

    /// Names of files beside the index, for one heading.
    void Add(const std::wstring& title, const std::vector<std::wstring>& files,
             std::vector<HandlerCall> calls = {});

    /// False if the file cannot be written.
    bool Save(const std::wstring& path) const;

private:
    struct Entry
    {
        std::wstring title;
        std::vector<std::wstring> files;
        std::vector<HandlerCall> calls;
    };
    std::wstring m_title, m_introduction;
    std::vector<Entry> m_entries;
};
