#pragma once
// The reading side of message maps.

#include <afxwin.h>

/// The first entry for a message, code and id, or null.
const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP_ENTRY* entries, UINT message, UINT code, UINT id);

/// The entry for a message of a window or thread in a map or its bases, or null.
const AFX_MSGMAP_ENTRY* FindWindowMessage(const AFX_MSGMAP* map, UINT message);
constexpr UINT firstRegisteredMessage = 0xC000;

inline const AFX_MSGMAP* BaseMap(const AFX_MSGMAP& map)
{
    return map.pfnGetBaseMap != nullptr ? map.pfnGetBaseMap() : nullptr;
}

// The way back from the type that maps keep: nSig promises that `Handler` is what was put in.
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
#endif
template <class Handler>
Handler RestoreHandlerType(AFX_PMSG handler)
{
    return reinterpret_cast<Handler>(handler);
}
#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif
