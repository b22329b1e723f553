#include <afxwin.h>

#include "buttons/ButtonReflected.h"

CButtonReflected::CButtonReflected() : CButtonReflected(nullptr)
{
}

CButtonReflected::CButtonReflected(CButtonReflectedNotificationHandler* pHandler)
    : CButtonReflection(pHandler)
{
}
