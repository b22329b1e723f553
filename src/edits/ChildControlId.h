#pragma once
// The id of a control that a box has beside itself.

#include "module/ResourceIdPool.h"

namespace ow
{
/// Either the id of a control of the dialog template, or 0 for none, or an id drawn from the pool for a
/// control that the box creates itself; the last one is given back at the end.
class CChildControlId
{
public:
    /// What is passed for a control that the box shall create.
    static constexpr unsigned int kCreate = 11000;

    explicit CChildControlId(unsigned int nId)
        : m_bOwn(nId == kCreate), m_nId(m_bOwn ? ResourceIdPool::Object().AcquireId() : nId)
    {
    }
    ~CChildControlId()
    {
        if (m_bOwn)
            ResourceIdPool::Object().ReleaseId(m_nId);
    }
    CChildControlId(const CChildControlId&) = delete;
    CChildControlId& operator=(const CChildControlId&) = delete;

    bool IsOwn() const { return m_bOwn; }
    unsigned int Get() const { return m_nId; }

private:
    bool m_bOwn;
    unsigned int m_nId;
};
} // namespace ow
