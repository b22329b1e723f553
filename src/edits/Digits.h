#pragma once
// Whole numbers as digits, for those who write thousands of them.

#include <array>
#include <cstdint>
#include <cstring>

namespace ow
{
/// "00", "01", ... "99"
constexpr auto kDigitPairs = []
{
    std::array<wchar_t, 200> pairs{};
    for (int i = 0; i < 100; ++i)
    {
        pairs[2 * i] = static_cast<wchar_t>(L'0' + i / 10);
        pairs[2 * i + 1] = static_cast<wchar_t>(L'0' + i % 10);
    }
    return pairs;
}();

/// Two digits in front of `psz`; where they begin. `n` is below 100.
inline wchar_t* gfnWritePair(wchar_t* psz, unsigned n)
{
    psz -= 2;
    std::memcpy(psz, &kDigitPairs[2 * n], 2 * sizeof *psz);
    return psz;
}

/// Writes a number so that its last digit stands in front of `psz`; where it begins. Two digits at a time, as
/// the divisions take the time: those of a `Number` of 32 bits take half of it.
template <class Number>
wchar_t* gfnWriteDigits(wchar_t* psz, Number n)
{
    for (; n >= 100; n /= 100)
        psz = gfnWritePair(psz, static_cast<unsigned>(n % 100));
    if (n >= 10)
        return gfnWritePair(psz, static_cast<unsigned>(n));
    *--psz = static_cast<wchar_t>(L'0' + n);
    return psz;
}

/// The same with a point before the last so many digits, and zeros where there are not enough of them.
template <class Number>
wchar_t* gfnWriteDecimals(wchar_t* psz, Number n, int nDecimals)
{
    if constexpr (sizeof n > sizeof(std::uint32_t))
    {
        if (n <= UINT32_MAX)
            return gfnWriteDecimals(psz, static_cast<std::uint32_t>(n), nDecimals);
    }
    if (nDecimals == 0)
        return gfnWriteDigits(psz, n);
    for (int nLeft = nDecimals; nLeft > 0; nLeft -= 2)
    {
        if (nLeft == 1)
        {
            *--psz = static_cast<wchar_t>(L'0' + n % 10);
            n /= 10;
        }
        else
        {
            psz = gfnWritePair(psz, static_cast<unsigned>(n % 100));
            n /= 100;
        }
    }
    *--psz = L'.';
    return gfnWriteDigits(psz, n);
}
} // namespace ow
