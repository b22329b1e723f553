#pragma once
// Control ids for child windows that the library's controls create at run time.
//
// ```cpp
//     const unsigned int id = ResourceIdPool::Object().AcquireId();
//     m_label.Create(L"", WS_CHILD, rect, GetParent(), id);
//     ...
//     ResourceIdPool::Object().ReleaseId(id);
// ```
//
// One pool serves the process. It holds the ids 11000 to 11199, which no dialog template may use, and hands
// out 11199 first. An id that is given back comes out again first. Running dry means that controls are being
// leaked, and is fatal. Only the thread of the dialogs may call it.

#include <afxtempl.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API ResourceIdPool
{
public:
    /// The one pool of the process.
    static ResourceIdPool& Object();

    /// Takes an id out of the pool. With all 200 out, a failed assertion that ends the process.
    unsigned int AcquireId();

    /// Puts an id back. Whether it came from here, or is in the pool already, is not checked.
    void ReleaseId(unsigned int nId);

private:
    ResourceIdPool();
    ResourceIdPool(const ResourceIdPool&) = delete;
    ResourceIdPool& operator=(const ResourceIdPool&) = delete;

    CList<unsigned int, unsigned int> m_listId{10};
    int m_nFirstId = 11000;
    int m_nIdCount = 200;

    static ResourceIdPool s_object;
};
