#include <afxwin.h>

#include "Pages.h"

// Each stands in the source of its page.
void AddTextBoxesPage(CPageManager& manager, CGalleryHostDialog& host);
void AddNumbersPage(CPageManager& manager, CGalleryHostDialog& host);
void AddLabelTemplatesPage(CPageManager& manager, CGalleryHostDialog& host);
void AddCombosPage(CPageManager& manager, CGalleryHostDialog& host);
void AddFontPage(CPageManager& manager, CGalleryHostDialog& host);
void AddButtonsPage(CPageManager& manager, CGalleryHostDialog& host);
void AddLabelsAndFontsPage(CPageManager& manager, CGalleryHostDialog& host);
void AddPickersPage(CPageManager& manager, CGalleryHostDialog& host);
void AddColoursPage(CPageManager& manager, CGalleryHostDialog& host);
void AddMessageBoxesPage(CPageManager& manager, CGalleryHostDialog& host);
void AddNamesAndFilesPage(CPageManager& manager, CGalleryHostDialog& host);
void AddProgressPage(CPageManager& manager, CGalleryHostDialog& host);
void AddGridPage(CPageManager& manager, CGalleryHostDialog& host);
void AddVirtualGridPage(CPageManager& manager, CGalleryHostDialog& host);
void AddSteelSchedulePage(CPageManager& manager, CGalleryHostDialog& host);
void AddCrossGridPage(CPageManager& manager, CGalleryHostDialog& host);
void AddDisplayCellsPage(CPageManager& manager, CGalleryHostDialog& host);
void AddMembersPage(CPageManager& manager, CGalleryHostDialog& host);
void AddChoicesPage(CPageManager& manager, CGalleryHostDialog& host);
void AddUnitFormatPage(CPageManager& manager, CGalleryHostDialog& host);
void AddConfigurationsPage(CPageManager& manager, CGalleryHostDialog& host);
void AddDrawingsPage(CPageManager& manager, CGalleryHostDialog& host);

void AddAllPages(CPageManager& manager, CGalleryHostDialog& host)
{
    AddTextBoxesPage(manager, host);
    AddNumbersPage(manager, host);
    AddLabelTemplatesPage(manager, host);
    AddCombosPage(manager, host);
    AddFontPage(manager, host);
    AddButtonsPage(manager, host);
    AddLabelsAndFontsPage(manager, host);
    AddPickersPage(manager, host);
    AddColoursPage(manager, host);
    AddMessageBoxesPage(manager, host);
    AddNamesAndFilesPage(manager, host);
    AddProgressPage(manager, host);
    AddGridPage(manager, host);
    AddVirtualGridPage(manager, host);
    AddSteelSchedulePage(manager, host);
    AddCrossGridPage(manager, host);
    AddDisplayCellsPage(manager, host);
    AddMembersPage(manager, host);
    AddChoicesPage(manager, host);
    AddUnitFormatPage(manager, host);
    AddConfigurationsPage(manager, host);
    AddDrawingsPage(manager, host);
}
