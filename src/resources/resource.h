#pragma once

// Ids of the library's dialogs, icons and bitmaps. Icons and bitmaps are separate numbering spaces: 10101
// names one of each. An id carries the name of the member or of the picker that holds the picture,
// whose Serbian terms the group comments translate. "OW" sets the icons apart from the system's own
// IDI_WARNING and its like.

// Messages, 32 pixels: the icons of the message box
#define IDI_OW_INFORMATION    10004
#define IDI_OW_QUESTION       10002
#define IDI_OW_WARNING        10003
#define IDI_OW_ERROR          10000

// The product's mark, 32 pixels
#define IDI_OW_OSTREL_WORKS   10039

// Answers, 16 pixels as all that follow unless told otherwise
#define IDI_OW_OK             10036
#define IDI_OW_CANCEL         10037
#define IDI_OW_CANCEL_CHANGES 10050
#define IDI_OW_APPLY_CHANGES  10049
#define IDI_OW_APPLY_TO_ALL   10101
#define IDI_OW_POWER          10102

// Arrows: Gore up, Dole down, Levo left, Desno right
#define IDI_OW_LEFT_ALT       10029
#define IDI_OW_RIGHT_ALT      10030
#define IDI_OW_UP_ALT         10052
#define IDI_OW_DOWN_ALT       10051
#define IDI_OW_GORE           10104
#define IDI_OW_DOLE           10105
#define IDI_OW_LEVO           10106
#define IDI_OW_DESNO          10107

// Arrows that no shared icon member holds; clients load them by id
#define IDI_OW_DOUBLE_LEFT    10031
#define IDI_OW_DOUBLE_RIGHT   10032
#define IDI_OW_DOUBLE_UP      10033
#define IDI_OW_DOUBLE_DOWN    10034
#define IDI_OW_RETURN         10035

// Actions: open (24 pixels), Dodaj add, Snimi save, Brisi delete, Promeni change, sort, calendar, zoom
#define IDI_OW_OPEN           10014
#define IDI_OW_DODAJ          10007
#define IDI_OW_SNIMI          10013
#define IDI_OW_BRISI          10008
#define IDI_OW_PROMENI        10054
#define IDI_OW_SORT           10053
#define IDI_OW_CALENDAR       10040
#define IDI_OW_ZOOM_1         10088
#define IDI_OW_ZOOM_2         10089
#define IDI_OW_PLUS           10090
#define IDI_OW_MINUS          10091

// Selection of cells: Sve all, Vrsta row, Kolona column
#define IDI_OW_SEL_SVE        10074
#define IDI_OW_SEL_VRSTA      10075
#define IDI_OW_SEL_KOLONA     10076

// Alignment, in reading order from the top left
#define IDI_OW_ALIGN_1        10077
#define IDI_OW_ALIGN_2        10078
#define IDI_OW_ALIGN_3        10079
#define IDI_OW_ALIGN_4        10080
#define IDI_OW_ALIGN_5        10081
#define IDI_OW_ALIGN_6        10082
#define IDI_OW_ALIGN_7        10083
#define IDI_OW_ALIGN_8        10084
#define IDI_OW_ALIGN_9        10085

// Oblikovanje, shaping of a plate's corner: square, cut, rounded, hollow, notched
#define IDI_OW_OBLIKOVANJE_1  10094
#define IDI_OW_OBLIKOVANJE_2  10095
#define IDI_OW_OBLIKOVANJE_3  10096
#define IDI_OW_OBLIKOVANJE_4  10097
#define IDI_OW_OBLIKOVANJE_5  10098

// Place and direction: Osno axial, Ivicno edge-wise, Upravno perpendicular, Paralelno parallel, Konveksno
// convex, Konkavno concave
#define IDI_OW_OSNO           10108
#define IDI_OW_IVICNO         10109
#define IDI_OW_UPRAVNO        10110
#define IDI_OW_PARALELNO      10111
#define IDI_OW_KONVEKSNO      10112
#define IDI_OW_KONKAVNO       10113

// Views and points: Pogled view, Presek section, Ref reference point, Seg segment, Rupa hole
#define IDI_OW_POGLED         10070
#define IDI_OW_POGLED_PREV    10086
#define IDI_OW_PRESEK         10087
#define IDI_OW_REF            10092
#define IDI_OW_SEG            10093
#define IDI_OW_SEG_2          10103
#define IDI_OW_RUPA_1         10071
#define IDI_OW_RUPA_2         10072
#define IDI_OW_RUPA_3         10073

// PrfGr, steel profiles: one profile (0) and groups of several (1 to 9)
#define IDI_OW_PRFGR_I0       10055
#define IDI_OW_PRFGR_C0       10056
#define IDI_OW_PRFGR_L0       10057
#define IDI_OW_PRFGR_HOP0     10058
#define IDI_OW_PRFGR_CC0      10174
#define IDI_OW_PRFGR_Z0       10175
#define IDI_OW_PRFGR_SIG0     10176
#define IDI_OW_PRFGR_OMEGA0   10177
#define IDI_OW_PRFGR_CEV0     10178
#define IDI_OW_PRFGR_I1       10068
#define IDI_OW_PRFGR_C1       10015
#define IDI_OW_PRFGR_C2       10016
#define IDI_OW_PRFGR_L1       10017
#define IDI_OW_PRFGR_L2       10018
#define IDI_OW_PRFGR_L3       10019
#define IDI_OW_PRFGR_L4       10020
#define IDI_OW_PRFGR_L5       10021
#define IDI_OW_PRFGR_L6       10023
#define IDI_OW_PRFGR_L7       10025
#define IDI_OW_PRFGR_L8       10027
#define IDI_OW_PRFGR_L9       10028

// Presek, solid sections: CEV tube, KRUZNI round, OTV open, PRAV rectangular, SANDUC box, TRAPEZ
// trapezoid, TROUG triangle
#define IDI_OW_PRESEK_CEV     10060
#define IDI_OW_PRESEK_I       10061
#define IDI_OW_PRESEK_KRUZNI  10062
#define IDI_OW_PRESEK_OTV     10063
#define IDI_OW_PRESEK_PRAV    10059
#define IDI_OW_PRESEK_SANDUC  10064
#define IDI_OW_PRESEK_T       10065
#define IDI_OW_PRESEK_TRAPEZ  10066
#define IDI_OW_PRESEK_TROUG   10067

// Plates: Lim flat, SavijeniLim bent
#define IDI_OW_LIM            10069
#define IDI_OW_SAVIJENI_LIM   10193

// Marks in grid cells and trees
#define IDI_OW_OK_CANCEL      10042
#define IDI_OW_VIOLET_DOWN    10043
#define IDI_OW_VIOLET_RIGHT   10044
#define IDI_OW_BLACK_RIGHT    10041
#define IDI_OW_TRANSPARENT_OK 10045
#define IDI_OW_NO             10048
#define IDI_OW_TRIANGLE       10046
#define IDI_OW_CHK_UNCHK      10047

// Kinds of font
#define IDI_OW_TTF            10099
#define IDI_OW_SHX            10100

// KotnaLinija: dimension lines, 48 by 16 pixels
#define IDB_OW_KOTNA_LINIJA_01             10101
#define IDB_OW_KOTNA_LINIJA_02             10102
#define IDB_OW_KOTNA_LINIJA_03             10103
#define IDB_OW_KOTNA_LINIJA_04             10104
#define IDB_OW_KOTNA_LINIJA_05             10105
#define IDB_OW_KOTNA_LINIJA_06             10106
#define IDB_OW_KOTNA_LINIJA_07             10107
#define IDB_OW_KOTNA_LINIJA_08             10108
#define IDB_OW_KOTNA_LINIJA_09             10109
#define IDB_OW_KOTNA_LINIJA_10             10110
#define IDB_OW_KOTNA_LINIJA_11             10111
#define IDB_OW_KOTNA_LINIJA_12             10112
#define IDB_OW_KOTNA_LINIJA_13             10113
#define IDB_OW_KOTNA_LINIJA_14             10114
#define IDB_OW_KOTNA_LINIJA_15             10115
#define IDB_OW_KOTNA_LINIJA_16             10116
#define IDB_OW_KOTNA_LINIJA_17             10117
#define IDB_OW_KOTNA_LINIJA_18             10118
#define IDB_OW_KOTNA_LINIJA_19             10119
#define IDB_OW_KOTNA_LINIJA_20             10120
#define IDB_OW_KOTNA_LINIJA_21             10121

// TekstKote: placing of the dimension text, 48 by 16
#define IDB_OW_TEKST_KOTE_1                10122
#define IDB_OW_TEKST_KOTE_2                10123
#define IDB_OW_TEKST_KOTE_3                10124
#define IDB_OW_TEKST_KOTE_4                10125
#define IDB_OW_TEKST_KOTE_5                10126
#define IDB_OW_TEKST_KOTE_6                10127

// Srafura: hatches, 32 by 24
#define IDB_OW_SRAFURA_01                  10139
#define IDB_OW_SRAFURA_02                  10140
#define IDB_OW_SRAFURA_03                  10141
#define IDB_OW_SRAFURA_04                  10142
#define IDB_OW_SRAFURA_05                  10143
#define IDB_OW_SRAFURA_06                  10144
#define IDB_OW_SRAFURA_07                  10145
#define IDB_OW_SRAFURA_08                  10146
#define IDB_OW_SRAFURA_09                  10147
#define IDB_OW_SRAFURA_10                  10148

// VisinskaKota: elevation marks, 32 by 24
#define IDB_OW_VISINSKA_KOTA_1             10179
#define IDB_OW_VISINSKA_KOTA_2             10180
#define IDB_OW_VISINSKA_KOTA_3             10181

// Linija: lines, and the lines of section symbols, 48 by 16; numbered as the pickers show them
#define IDB_OW_LINIJA_01                   10076
#define IDB_OW_LINIJA_02                   10077
#define IDB_OW_LINIJA_03                   10078
#define IDB_OW_LINIJA_04                   10079
#define IDB_OW_LINIJA_05                   10080
#define IDB_OW_LINIJA_06                   10183
#define IDB_OW_LINIJA_07                   10184
#define IDB_OW_LINIJA_08                   10182
#define IDB_OW_LINIJA_09                   10185
#define IDB_OW_LINIJA_10                   10187
#define IDB_OW_LINIJA_11                   10189
#define IDB_OW_LINIJA_12                   10190
#define IDB_OW_LINIJA_13                   10191

// SimbolPresekaZavrsetak: ends of section symbols, 32 by 24
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_01 10128
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_02 10129
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_03 10130
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_04 10131
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_05 10132
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_06 10133
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_07 10134
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_08 10135
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_09 10136
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_10 10137
#define IDB_OW_SIMBOL_PRESEKA_ZAVRSETAK_11 10138

// The message box, and its controls; the first button is IDOK
#define IDD_OW_MESSAGE_BOX                 10001
#define IDC_OW_SECOND                      101
#define IDC_OW_THIRD                       102
#define IDC_OW_FOURTH                      103
#define IDC_OW_MESSAGE                     104

// The name dialogs, with an edit control and with a combo box
#define IDD_OW_NAZIV                       10075
#define IDC_OW_NAZIV                       10000
#define IDD_OW_NAZIV_COMBO                 10076
#define IDC_OW_NAZIV_COMBO                 10001

// A one-line entry for client modules, which bring the class
#define IDD_OW_ENTRY                       10036
#define IDC_OW_ENTRY                       10038

// The progress boxes, and their bar
#define IDD_OW_PROGRESS                    10149
#define IDD_OW_PROGRESS_CANCEL             10150
#define IDC_OW_PROGRESS                    10152
// The pop-up of a colour button; twenty cells in reading order
#define IDD_OW_COLOR_SELECT                10511
#define IDC_OW_FIRST_COLOR                 10153
#define IDC_OW_LAST_COLOR                  10172
#define IDC_OW_OTHER_COLOR                 10173
