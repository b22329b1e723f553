#pragma once
// This library's module interface. Callers reach it through OwDllInterface only.

#include "module/OwDllInterface.h"

class CDialogControlsInterface : public OwDllInterface
{
private:
    int Setup(void* pContext) override;
    void Cleanup(void* pContext) override;
    void InitDocument(void* pContext) override;
    AClassRegistry* GetClassRegistry() override;
    ACommandRegistry* GetCommandRegistry() override;
};
