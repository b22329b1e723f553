// Start-up: the shared graphics of the library.
//
// Everything is loaded once, when the process attaches, so that dialogs with hundreds of buttons copy handles and
// load nothing. All of it belongs to the library for the life of the process.
//
// Runs inside the library's entry point, under the loader's lock.

#include <afxwin.h>

#include "module/Initialize.h"

#include "buttons/BitmapBtnST.h"
#include "buttons/ButtonST.h"
#include "buttons/ThemeHelperST.h"
#include "module/AssertReport.h"
#include "module/HostResourceScope.h"
#include "module/IconResource.h"

#include <iterator>
#include <new>

namespace
{
constexpr char kSource[] = ".\\Initialize";

/// A shared icon, and how a report names it should it be missing.
struct IconRow
{
    HICON* member;
    int id;
    const char* expression;
    int line;
};

/// Reports show this name, so it stays.
HICON LoadSharedIcon(int id)
{
    return gfnLoadIconResource(id);
}

void LoadIconOf(const IconRow& row)
{
    if (*row.member)
        return;
    *row.member = LoadSharedIcon(row.id);
    if (!*row.member)
        gfnReportFailedAssert(row.expression, kSource, row.line);
}

void CreateThemeHelper()
{
    CButtonST::pLocalTheme = new (std::nothrow) CThemeHelperST;
}

/// The elevation marks, with the steps of their class's LoadBitmaps written out: start-up has always loaded
/// these three by itself, and the class's own operation is for those who want them back after a clean-up.
void LoadElevationMarks(HINSTANCE hInstance)
{
    const CHostResourceScope resources;
    auto& pictures = CBitmapBtnSTVisinskaKota::s_pictures;
    pictures.handles[0] = ::LoadBitmap(hInstance, MAKEINTRESOURCE(10179));
    pictures.handles[1] = ::LoadBitmap(hInstance, MAKEINTRESOURCE(10180));
    pictures.handles[2] = ::LoadBitmap(hInstance, MAKEINTRESOURCE(10181));
    pictures.loaded = true;
}

#define OW_ICON(member, id)                                                                                  \
    {                                                                                                        \
        &CButtonST::member, id, "CButtonST::" #member " = LoadSharedIcon(" #id ")", __LINE__                 \
    }

// In load order. A report of a missing icon names the line on which its row stands, and support goes by those
// numbers: the first row is on line 77 and the last on line 198, and none may move. The assertions below the
// table hold this file to it.
// clang-format off
constexpr IconRow kIcons[] = {
    OW_ICON(hIconInformation, 10004),
    OW_ICON(hIconQuestion, 10002),
    OW_ICON(hIconWarning, 10003),
    OW_ICON(hIconError, 10000),

    // Dialog buttons
    OW_ICON(hIconOk, 10036),
    OW_ICON(hIconCancel, 10037),
    OW_ICON(hIconCancelChanges, 10050),
    OW_ICON(hIconApplyChanges, 10049),
    OW_ICON(hOstrelWorks, 10039),
    // Arrows and switches
    OW_ICON(hIconLeftAlt, 10029),
    OW_ICON(hIconRightAlt, 10030),
    OW_ICON(hIconUpAlt, 10052),
    OW_ICON(hIconDownAlt, 10051),
    OW_ICON(hApplyToAll, 10101),
    OW_ICON(hIconPower, 10102),

    // Commands
    OW_ICON(h24IconOpen, 10014),
    OW_ICON(hIconDodaj, 10007),
    OW_ICON(hIconSnimi, 10013),
    OW_ICON(hIconBrisi, 10008),
    OW_ICON(hIconPromeni, 10054),
    OW_ICON(hIconSort, 10053),
    OW_ICON(hCalendar, 10040),
    // Shapes of an end
    OW_ICON(hIconOblikovanje1, 10094),
    OW_ICON(hIconOblikovanje2, 10095),
    OW_ICON(hIconOblikovanje3, 10096),
    OW_ICON(hIconOblikovanje4, 10097),
    OW_ICON(hIconOblikovanje5, 10098),
    // Directions of a joint
    OW_ICON(hIconOsno, 10108),
    OW_ICON(hIconIvicno, 10109),
    OW_ICON(hIconUpravno, 10110),
    OW_ICON(hIconParalelno, 10111),
    OW_ICON(hIconKonveksno, 10112),
    OW_ICON(hIconKonkavno, 10113),
    // Views and sections
    OW_ICON(hIconPogled, 10070),
    OW_ICON(hIconPogledPrev, 10086),
    OW_ICON(hIconPresek, 10087),
    OW_ICON(hIconRef, 10092),
    OW_ICON(hIconSeg, 10093),
    OW_ICON(hIconSeg2, 10103),
    // Holes
    OW_ICON(hIconRupa1, 10071),
    OW_ICON(hIconRupa2, 10072),
    OW_ICON(hIconRupa3, 10073),
    // Selection
    OW_ICON(hIconSelSve, 10074),
    OW_ICON(hIconSelVrsta, 10075),
    OW_ICON(hIconSelKolona, 10076),
    // Alignment, nine places
    OW_ICON(hIconAlign1, 10077),
    OW_ICON(hIconAlign2, 10078),
    OW_ICON(hIconAlign3, 10079),
    OW_ICON(hIconAlign4, 10080),
    OW_ICON(hIconAlign5, 10081),
    OW_ICON(hIconAlign6, 10082),
    OW_ICON(hIconAlign7, 10083),
    OW_ICON(hIconAlign8, 10084),
    OW_ICON(hIconAlign9, 10085),
    // Zoom and steps
    OW_ICON(hIconZoom1, 10088),
    OW_ICON(hIconZoom2, 10089),
    OW_ICON(hIconPlus, 10090),
    OW_ICON(hIconMinus, 10091),

    // Profile groups by number
    OW_ICON(hIconPrfGrI1, 10068),
    OW_ICON(hIconPrfGrC1, 10015),
    OW_ICON(hIconPrfGrC2, 10016),
    OW_ICON(hIconPrfGrL1, 10017),
    OW_ICON(hIconPrfGrL2, 10018),
    OW_ICON(hIconPrfGrL3, 10019),
    OW_ICON(hIconPrfGrL4, 10020),
    OW_ICON(hIconPrfGrL5, 10021),
    OW_ICON(hIconPrfGrL6, 10023),
    OW_ICON(hIconPrfGrL7, 10025),
    OW_ICON(hIconPrfGrL8, 10027),
    OW_ICON(hIconPrfGrL9, 10028),
    // Profile groups
    OW_ICON(hIconPrfGrI0, 10055),
    OW_ICON(hIconPrfGrC0, 10056),
    OW_ICON(hIconPrfGrL0, 10057),
    OW_ICON(hIconPrfGrHOP0, 10058),
    OW_ICON(hIconPrfGrCC0, 10174),
    OW_ICON(hIconPrfGrZ0, 10175),
    OW_ICON(hIconPrfGrSig0, 10176),
    OW_ICON(hIconPrfGrOmega0, 10177),
    OW_ICON(hIconPrfGrCev0, 10178),
    // Sections
    OW_ICON(hIconPresekCEV, 10060),
    OW_ICON(hIconPresekI, 10061),
    OW_ICON(hIconPresekKRUZNI, 10062),
    OW_ICON(hIconPresekOTV, 10063),
    OW_ICON(hIconPresekPRAV, 10059),
    OW_ICON(hIconPresekSANDUC, 10064),
    OW_ICON(hIconPresekT, 10065),
    OW_ICON(hIconPresekTRAPEZ, 10066),
    OW_ICON(hIconPresekTROUG, 10067),
    // Plates
    OW_ICON(hIconLim, 10069),
    OW_ICON(hIconSavijeniLim, 10193),

    // Marks
    OW_ICON(hIconOkCancel, 10042),
    OW_ICON(hIconVioletDown, 10043),
    OW_ICON(hIconVioletRight, 10044),
    OW_ICON(hIconBlackRight, 10041),
    OW_ICON(hIconTransparentOk, 10045),
    OW_ICON(hIconNo, 10048),
    OW_ICON(hIconTriangle, 10046),
    OW_ICON(hIconChkUnchk, 10047),
    // Directions
    OW_ICON(hIconGore, 10104),
    OW_ICON(hIconDole, 10105),
    OW_ICON(hIconLevo, 10106),
    OW_ICON(hIconDesno, 10107),
};
// clang-format on
#undef OW_ICON

static_assert(std::size(kIcons) == 102);
static_assert(std::begin(kIcons)->line == 77 && std::prev(std::end(kIcons))->line == 198);
} // namespace

// The order is fixed.
void gfnInitialize(HINSTANCE hInstance)
{
    CreateThemeHelper();

    CBitmapBtnSTKotnaLinija::LoadBitmaps(hInstance);
    CBitmapBtnSTTekstKote::LoadBitmaps(hInstance);
    CBitmapBtnSTSrafura::LoadBitmaps(hInstance);
    CBitmapBtnSTSimbolPresekaLinija::LoadBitmaps(hInstance);
    CBitmapBtnSTSimbolPresekaZavrsetak::LoadBitmaps(hInstance);
    CBitmapBtnSTLinija::LoadBitmaps(hInstance);
    LoadElevationMarks(hInstance);

    for (const IconRow& row : kIcons)
        LoadIconOf(row);
}
