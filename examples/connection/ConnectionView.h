#pragma once
// The drawing of a connection: the plate as seen along the beam, and a section through plate and column, to
// one scale, with dimensions.

#include "Model.h"

#include <DialogControlsOW.h>

class CConnectionView : public CStatic
{
public:
    /// Shows a fitted connection from now on.
    void Show(const Connection& connection);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; } // the drawing covers it
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    Connection m_connection;
};
