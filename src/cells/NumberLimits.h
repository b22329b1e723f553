#pragma once
// The bounds of what a user may enter.

/// A lower and an upper bound. Each may be missing, and each says whether it may be reached itself. Bounds
/// that leave no number between them refuse all. Small: there is one in every cell of a column of numbers.
template <class Number>
class CNumberLimits
{
public:
    void SetMin(Number min, bool bInclusive)
    {
        m_min = min;
        m_bHasMin = true;
        m_bMinInclusive = bInclusive;
    }
    void SetMax(Number max, bool bInclusive)
    {
        m_max = max;
        m_bHasMax = true;
        m_bMaxInclusive = bInclusive;
    }

    bool Allow(Number value) const { return !IsTooSmall(value) && !IsTooLarge(value); }

private:
    bool IsTooSmall(Number value) const
    {
        return m_bHasMin && (m_bMinInclusive ? m_min > value : m_min >= value);
    }
    bool IsTooLarge(Number value) const
    {
        return m_bHasMax && (m_bMaxInclusive ? value > m_max : value >= m_max);
    }

    Number m_min = 0;
    Number m_max = 0;
    bool m_bHasMin = false;
    bool m_bHasMax = false;
    bool m_bMinInclusive = false;
    bool m_bMaxInclusive = false;
};
