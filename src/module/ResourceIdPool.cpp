#include <afxwin.h>

#include "module/ResourceIdPool.h"

#include "module/AssertReport.h"

ResourceIdPool ResourceIdPool::s_object;

ResourceIdPool& ResourceIdPool::Object()
{
    return s_object;
}

ResourceIdPool::ResourceIdPool()
{
    for (int i = 0; i < m_nIdCount; ++i)
        m_listId.AddHead(static_cast<unsigned int>(m_nFirstId + i));
}

unsigned int ResourceIdPool::AcquireId()
{
    ASSERT_AT(!m_listId.IsEmpty(), ".\\ResourceIdPool", 37);
    return m_listId.RemoveHead();
}

void ResourceIdPool::ReleaseId(unsigned int nId)
{
    m_listId.AddHead(nId);
}
