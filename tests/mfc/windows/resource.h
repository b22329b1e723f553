#pragma once
// Resources of the tests of this folder, and of their extension module.

#define IDD_PAGE 200
#define IDS_SHEET 201
#define IDS_TAB 202
#define IDS_HEADER 203
#define IDS_SUBTITLE 204
#define IDR_KEYS 206
#define IDC_GRADE 1201

#define IDS_EXTENSION_NAME 41001 // in both, with different texts
#define IDS_EXTENSION_ONLY 41002 // in the module only
#define IDD_EXTENSION_DIALOG 4100
#define IDC_EXTENSION_COMBO 4101    // with "Beam" and "Plate" from the resource
#define IDC_EXTENSION_LIST 4102     // with "S235"
#define IDC_EXTENSION_PICTURES 4103 // with "Bolts"
