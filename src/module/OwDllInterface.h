#pragma once
// What a module of the add-on gives to its loader.
//
// ```cpp
//     OwDllInterface* pInterface = OwGetDllInterface();
//     if (pInterface->Setup(nullptr)) ...
//     pInterface->Cleanup(nullptr);
// ```
//
// The object belongs to the module, is never deleted by the caller, and is the same at every call.

#include "module/Export.h"

class AClassRegistry;
class ACommandRegistry;

class OwDllInterface
{
public:
    /// Prepares the module. Non-zero on success.
    virtual int Setup(void* pContext) = 0;
    /// Gives back what the module holds for the process, as far as it can be given back.
    virtual void Cleanup(void* pContext) = 0;
    /// Called for each drawing that is opened.
    virtual void InitDocument(void* pContext) = 0;
    /// The classes that the module registers with the host; null if it registers none.
    virtual AClassRegistry* GetClassRegistry() = 0;
    /// The commands that the module registers with the host; null if it registers none.
    virtual ACommandRegistry* GetCommandRegistry() = 0;
};

/// This library's interface. Its `Setup` always answers 1 and does nothing, since loading has done the work;
/// its `Cleanup` gives back four of the seven bitmap tables. Both may be called any number of times, in any
/// order.
extern "C" OW_DIALOGCONTROLS_API OwDllInterface* OwGetDllInterface();

/// The host's version handshake, called by the host when it loads the module.
extern "C" OW_DIALOGCONTROLS_API unsigned int acrxGetApiVersion(unsigned int nHostVersion);
