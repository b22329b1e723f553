#pragma once
// Resources of the base tests.

#define IDS_GREETING 101         // "Good day"
#define IDS_COUNT_FORMAT 102     // "%s has %d"
#define IDS_NUMBERED_INSERTS 103 // "%2 before %1, not %3"
#define IDS_NO_SUCH_STRING 4000
