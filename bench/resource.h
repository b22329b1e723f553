#pragma once

#define IDD_FORTY 100
#define IDC_FORTY_FIRST 1000

#define IDD_PAGE_HOST 101
#define IDD_PAGE_FIRST 102
#define IDD_PAGE_SECOND 103
