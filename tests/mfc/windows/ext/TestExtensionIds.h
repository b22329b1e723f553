#pragma once
// Resources of the two test modules.

#define IDS_EXTENSION_NAME 41001    // in both, with different texts
#define IDS_EXTENSION_EARLY 41017   // in the early module only
#define IDD_EXTENSION_DIALOG 4100   // in the early module only
#define IDC_EXTENSION_COMBO 4101    // with "Beam" and "Plate" from the resource
#define IDC_EXTENSION_LIST 4102     // with "S235"
#define IDC_EXTENSION_PICTURES 4103 // with "Bolts"
