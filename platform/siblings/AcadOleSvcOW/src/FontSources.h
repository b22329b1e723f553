#pragma once
// Where fonts come from.

#include "AcadOleSvcDef.h"

#include <vector>

/// The TrueType faces that a device context knows, without the turned forms for vertical writing. A face may
/// appear more than once.
std::vector<CString> TrueTypeFaces(HDC hDC);

/// Names of the SHX files of a directory, without directory and extension.
std::vector<CString> SHXFontsIn(const CString& strDirectory);
