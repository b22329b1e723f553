#pragma once
// The two bounds of a number box.

namespace ow
{
/// Limits numbers while its minimum is not above its maximum. A new range is the pair 0 and -1 and limits
/// nothing; so does any other inverted pair, and one that holds a NaN.
template <class Number>
class CValueRange
{
public:
    bool IsEnabled() const { return m_min <= m_max; }
    void Disable() { *this = CValueRange(); }

    Number GetMin() const { return m_min; }
    Number GetMax() const { return m_max; }

    /// Whether either bound is another one now.
    bool Set(Number min, Number max)
    {
        if (min == m_min && max == m_max)
            return false;
        m_min = min;
        m_max = max;
        return true;
    }

    bool Contains(Number value) const
    {
        Number clamped = value;
        return !Clamp(clamped);
    }

    /// Brings a number that lies outside to the bound that it passed; whether it was moved.
    bool Clamp(Number& value) const
    {
        if (!IsEnabled() || !(value < m_min || value > m_max))
            return false;
        value = value < m_min ? m_min : m_max;
        return true;
    }

private:
    Number m_min = 0;
    Number m_max = -1;
};
} // namespace ow
