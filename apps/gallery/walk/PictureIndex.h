#pragma once
// The page of all pictures that a walk leaves: index.html, with each picture's name and the handler calls it shows.

#include <string>
#include <vector>

struct HandlerCall
{
    std::wstring control, call;
};

class PictureIndex
{
public:
    void Add(const std::wstring& title, const std::wstring& file, std::vector<HandlerCall> calls = {});

    /// False if the file cannot be written.
    bool Save(const std::wstring& path) const;

private:
    struct Picture
    {
        std::wstring title, file;
        std::vector<HandlerCall> calls;
    };
    std::vector<Picture> m_pictures;
};
