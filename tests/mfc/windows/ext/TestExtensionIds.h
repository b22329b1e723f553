#pragma once
// Resources of the two test modules.

#define IDS_EXTENSION_NAME 41001  // in both, with different texts
#define IDS_EXTENSION_EARLY 41017 // in the early module only
#define IDD_EXTENSION_DIALOG 4100 // in the early module only
#define IDC_EXTENSION_LIST 4101   // a combo box with two texts from the resource
