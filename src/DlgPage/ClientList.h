#pragma once
// The lists of clients that the page framework keeps, and the rule by which clients leave them.

#include <afxtempl.h>

namespace ow
{
/// Clients in the order in which they were registered; not owned.
template <class Client>
using CClientList = CArray<Client*, Client*>;

/// The first place of an object in a list, or -1.
template <class Object>
INT_PTR IndexOf(const CArray<Object*, Object*>& objects, const Object* pObject)
{
    for (INT_PTR i = 0; i < objects.GetSize(); ++i)
        if (objects[i] == pObject)
            return i;
    return -1;
}

/// Registers a client, as often as it is asked to; or removes it. Wanted: the client that stands first stays
/// for good, since it is the one that the host cannot do without. An unknown one changes nothing.
template <class Client>
void RegisterClient(CClientList<Client>& clients, Client* pClient, bool bRegister)
{
    if (bRegister)
    {
        clients.Add(pClient);
        return;
    }
    if (const INT_PTR i = IndexOf(clients, pClient); i > 0)
        clients.RemoveAt(i);
}
} // namespace ow
