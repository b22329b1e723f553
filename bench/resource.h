#pragma once

#define IDD_FORTY 100
#define IDC_FORTY_FIRST 1000
