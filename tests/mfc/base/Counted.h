#pragma once
// An element that counts its like and can be told to throw.

#include <afx.h>

/// Constructions and copies count towards the throw; moves do not exist, so that growing has to copy.
class Counted
{
public:
    Counted() : Counted(0) {}
    explicit Counted(int value) : m_value(value)
    {
        Step();
        ++s_alive;
    }
    Counted(const Counted& other) : Counted(other.m_value) {}
    Counted& operator=(const Counted& other)
    {
        Step();
        m_value = other.m_value;
        return *this;
    }
    ~Counted() { --s_alive; }

    static int Alive() { return s_alive; }
    /// The nth construction or assignment from now on throws a memory exception; 0 for none.
    static void ThrowAt(int nth) { s_stepsLeft = nth; }

    int m_value;

private:
    static void Step()
    {
        if (s_stepsLeft > 0 && --s_stepsLeft == 0)
        {
            AfxThrowMemoryException();
        }
    }

    static inline int s_alive = 0;
    static inline int s_stepsLeft = 0;
};
