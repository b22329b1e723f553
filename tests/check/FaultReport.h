#pragma once
// What a test program of a build with OW_CHECK says of faults that are no failed expectation.

namespace owtest
{
/// Names the place of a trap for undefined behaviour, as "check: undefined behaviour in MODULE at OFFSET", and
/// fails a test after which the heap is damaged. To be called once, before the tests run.
void ReportFaults();
} // namespace owtest
