#pragma once
// What random sequences are made from: the same numbers in every run.

#include <afx.h>

#include "Testing.h"

class Dice
{
public:
    /// A number from 0 on below `sides`.
    int operator()(int sides) { return static_cast<int>(m_engine() % static_cast<unsigned>(sides)); }
    /// Up to `longest` of few letters, so that parts of texts are found in others.
    CString Text(int longest)
    {
        CString text;
        for (int n = (*this)(longest + 1); n > 0; --n)
            text += static_cast<WCHAR>(L'a' + (*this)(3));
        return text;
    }

private:
    std::mt19937 m_engine;
};
