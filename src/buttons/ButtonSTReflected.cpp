#include <afxwin.h>

#include "buttons/ButtonSTReflected.h"

CButtonSTReflected::CButtonSTReflected() : CButtonSTReflected(nullptr)
{
}

CButtonSTReflected::CButtonSTReflected(CButtonReflectedNotificationHandler* pHandler)
    : CButtonReflection(pHandler)
{
}
