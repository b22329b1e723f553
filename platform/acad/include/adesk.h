#pragma once
// The CAD host's basic types.

namespace Adesk
{
using Boolean = int;
constexpr Boolean kFalse = 0;
constexpr Boolean kTrue = 1;
} // namespace Adesk

namespace Acad
{
/// What an operation of the host answers.
enum ErrorStatus
{
    eOk = 0,
    eNotApplicable = 3, ///< the operation makes no sense in the present state; nothing was changed
};
} // namespace Acad
