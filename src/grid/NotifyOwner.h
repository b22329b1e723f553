#pragma once
// How a grid, its cells and its editors reach whoever listens: the owner window of the sender, or else its
// parent.

#include <afxwin.h>

/// Fills the header and sends WM_NOTIFY. Answers what the receiver answered, or 0 if the sender's window does
/// not exist or there is no receiver. The receiver may destroy the sender: callers check before they go on.
LRESULT gfnNotifyOwner(const CWnd* pSender, NMHDR& header, UINT nCode);

/// The same with a GridNotify record. `nCode` is an NM_ or LVN_ code.
LRESULT gfnNotifyOwner(const CWnd* pSender, int nRow, int nCol, UINT nCode);
