#pragma once
#define __AFXMSG_H__ // asked for by the headers that wizards make
// Message maps: the table entry, the signatures a handler can have, and the macros that make entries.
//
//     BEGIN_MESSAGE_MAP(CMyWnd, CWnd)
//         ON_WM_PAINT()                                // void CMyWnd::OnPaint()
//         ON_BN_CLICKED(IDC_APPLY, &CMyWnd::OnApply)   // void CMyWnd::OnApply()
//         ON_MESSAGE(WM_APP + 1, &CMyWnd::OnReady)     // LRESULT CMyWnd::OnReady(WPARAM, LPARAM)
//     END_MESSAGE_MAP()
//
// Every macro checks the handler's type at compile time. A map is searched from the most derived class to the
// base, each table from its first entry on; the first entry that fits receives the message. Entries of the
// _EX forms answer BOOL, and FALSE lets the search go on with the next routing target.

#include <afx.h>
#include <atltypes.h>

#ifndef AFX_MSG_CALL
#define AFX_MSG_CALL
#endif
#ifndef afx_msg
#define afx_msg // marks a message handler; means nothing to the compiler
#endif

class CCmdTarget;
class CCmdUI;
class CWnd;
class CDC;
class CMenu;
class CListBox;
class CScrollBar;
class CWinThread;

/// A handler as the table keeps it; AFX_MSGMAP_ENTRY::nSig says what it really is.
using AFX_PMSG = void (AFX_MSG_CALL CCmdTarget::*)();

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage; ///< window message; WM_COMMAND and WM_NOTIFY for commands and notifications
    UINT nCode;    ///< notification code, CN_COMMAND or CN_UPDATE_COMMAND_UI; 0 for other messages
    UINT nID;      ///< control id, or the first of a range; 0 for other messages
    UINT nLastID;  ///< last control id of a range
    UINT_PTR nSig; ///< AfxSig of the handler, or the address of a registered message's number
    AFX_PMSG pfn;  ///< the handler
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)(); ///< map of the base class; null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;          ///< ends with an entry of signature AfxSig_end
};

/// Signature of a handler: result, then parameters. Only entries of message maps use these values.
enum AfxSig : UINT_PTR
{
    AfxSig_end = 0,              ///< end of the table
    AfxSig_b_D_v,                ///< BOOL (CDC*)
    AfxSig_b_b_v,                ///< BOOL (BOOL)
    AfxSig_b_v_v,                ///< BOOL ()
    AfxSig_b_v_s,                ///< BOOL (pointer)
    AfxSig_b_W_uu,               ///< BOOL (CWnd*, UINT, UINT)
    AfxSig_b_W_COPYDATASTRUCT,   ///< BOOL (CWnd*, COPYDATASTRUCT*)
    AfxSig_b_v_HELPINFO,         ///< BOOL (HELPINFO*)
    AfxSig_b_u_DWORD,            ///< BOOL (UINT, DWORD_PTR)
    AfxSig_CTLCOLOR,             ///< HBRUSH (CDC*, CWnd*, UINT)
    AfxSig_CTLCOLOR_REFLECT,     ///< HBRUSH (CDC*, UINT)
    AfxSig_i_u_W_u,              ///< int (UINT, CWnd*, UINT)
    AfxSig_i_uu_v,               ///< int (UINT, UINT)
    AfxSig_i_W_uu,               ///< int (CWnd*, UINT, UINT)
    AfxSig_i_v_s,                ///< int (pointer)
    AfxSig_i_u_s,                ///< int (int, pointer)
    AfxSig_l_w_l,                ///< LRESULT (WPARAM, LPARAM)
    AfxSig_l_uu_M,               ///< LRESULT (UINT, UINT, CMenu*)
    AfxSig_l_p,                  ///< LRESULT (CPoint)
    AfxSig_l_v_v,                ///< LRESULT ()
    AfxSig_u_v_v,                ///< UINT ()
    AfxSig_h_v_v,                ///< HCURSOR ()
    AfxSig_v_b_v,                ///< void (BOOL)
    AfxSig_v_b_u,                ///< void (BOOL, UINT)
    AfxSig_v_b_u32,              ///< void (BOOL, DWORD)
    AfxSig_v_b_NCCALCSIZEPARAMS, ///< void (BOOL, NCCALCSIZE_PARAMS*)
    AfxSig_v_b_W_W,              ///< void (BOOL, CWnd*, CWnd*)
    AfxSig_v_v_v,                ///< void ()
    AfxSig_v_u_v,                ///< void (UINT)
    AfxSig_v_up_v,               ///< void (UINT_PTR)
    AfxSig_v_uu_v,               ///< void (UINT, UINT)
    AfxSig_v_u_u_l,              ///< void (UINT, UINT, UINT) of a key
    AfxSig_v_u_l,                ///< void (UINT, LPARAM)
    AfxSig_v_u_ii,               ///< void (UINT, int, int)
    AfxSig_v_v_ii,               ///< void (int, int)
    AfxSig_v_u_p,                ///< void (UINT, CPoint) with key flags
    AfxSig_v_hit_p,              ///< void (UINT, CPoint) with a hit-test code
    AfxSig_v_u_u_p,              ///< void (UINT, UINT, CPoint) with key flags and a button
    AfxSig_v_u_W,                ///< void (UINT, CWnd*)
    AfxSig_v_u_s,                ///< void (UINT, pointer)
    AfxSig_v_i_s,                ///< void (int, pointer)
    AfxSig_v_v_s,                ///< void (pointer)
    AfxSig_v_D_v,                ///< void (CDC*)
    AfxSig_v_M_v,                ///< void (CMenu*)
    AfxSig_v_M_ub,               ///< void (CMenu*, UINT, BOOL)
    AfxSig_v_uu_h,               ///< void (UINT, UINT, HMENU)
    AfxSig_v_W_v,                ///< void (CWnd*) with the window in wParam
    AfxSig_v_v_W,                ///< void (CWnd*) with the window in lParam
    AfxSig_v_W_p,                ///< void (CWnd*, CPoint)
    AfxSig_v_h_v,                ///< void (HANDLE)
    AfxSig_v_h_h,                ///< void (HWND, HWND)
    AfxSig_v_w_l,                ///< void (WPARAM, LPARAM) of a thread
    AfxSig_ACTIVATE,             ///< void (UINT, CWnd*, BOOL)
    AfxSig_SCROLL,               ///< void (UINT, UINT, CScrollBar*)
    AfxSig_SCROLL_REFLECT,       ///< void (UINT, UINT)
    AfxSig_SIZING,               ///< void (UINT, LPRECT)
    AfxSig_MOUSEWHEEL,           ///< BOOL (UINT, short, CPoint)

    AfxSigCmd_v,               ///< void ()
    AfxSigCmd_b,               ///< BOOL ()
    AfxSigCmd_RANGE,           ///< void (UINT id)
    AfxSigCmd_EX,              ///< BOOL (UINT id)
    AfxSigNotify_v,            ///< void (NMHDR*, LRESULT*)
    AfxSigNotify_b,            ///< BOOL (NMHDR*, LRESULT*)
    AfxSigNotify_RANGE,        ///< void (UINT id, NMHDR*, LRESULT*)
    AfxSigNotify_EX_RANGE,     ///< BOOL (UINT id, NMHDR*, LRESULT*)
    AfxSigCmdUI,               ///< void (CCmdUI*)
    AfxSig_last = AfxSigCmdUI, ///< greater values in nSig are addresses of registered message numbers
};

#define CN_COMMAND 0                      ///< a menu, accelerator or button command
#define CN_UPDATE_COMMAND_UI ((UINT)(-1)) ///< ask for the state of a command
#define CN_EVENT ((UINT)(-2))             ///< reserved for events of OLE controls

#define WM_CTLCOLOR 0x0019                 ///< stands in maps for the seven WM_CTLCOLORxxx messages
#define WM_REFLECT_BASE (WM_USER + 0x1C00) ///< added to a notification that is sent back to its control

// A pointer to member of any signature becomes the table's type here and nowhere else; dispatch turns it
// back by AFX_MSGMAP_ENTRY::nSig before the call.
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
#endif
template <class Handler>
inline AFX_PMSG AfxEraseHandlerType(Handler handler)
{
    return reinterpret_cast<AFX_PMSG>(handler);
}
#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

// Checks a handler against its signature (which also selects among overloads), then erases the type.
#define AFX_HANDLER_(target, result, parameters, memberFxn)                                                  \
    AfxEraseHandlerType(static_cast<result(AFX_MSG_CALL target::*) parameters>(memberFxn))

#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                     \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                        \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                                   \
    {                                                                                                        \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                           \
    template <typename type_name>                                                                            \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const                                             \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    template <typename type_name>                                                                            \
    const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap()                                        \
    {                                                                                                        \
        using ThisClass [[maybe_unused]] = theClass<type_name>;                                              \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    {                                                                                                        \
        0, 0, 0, 0, AfxSig_end, nullptr                                                                      \
    }                                                                                                        \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};            \
    return &messageMap;                                                                                      \
    }

// clang-format off

// Commands and notifications -----------------------------------------------------------------------------

#define ON_COMMAND(id, memberFxn) \
    { WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(id), AfxSigCmd_v, AFX_HANDLER_(CCmdTarget, void, (), memberFxn) },
#define ON_COMMAND_RANGE(id, idLast, memberFxn) \
    { WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(idLast), AfxSigCmd_RANGE, AFX_HANDLER_(CCmdTarget, void, (UINT), memberFxn) },
#define ON_COMMAND_EX(id, memberFxn) \
    { WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(id), AfxSigCmd_EX, AFX_HANDLER_(CCmdTarget, BOOL, (UINT), memberFxn) },
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn) \
    { WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(idLast), AfxSigCmd_EX, AFX_HANDLER_(CCmdTarget, BOOL, (UINT), memberFxn) },
#define ON_UPDATE_COMMAND_UI(id, memberFxn) \
    { WM_COMMAND, CN_UPDATE_COMMAND_UI, (WORD)(id), (WORD)(id), AfxSigCmdUI, AFX_HANDLER_(CCmdTarget, void, (CCmdUI*), memberFxn) },
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn) \
    { WM_COMMAND, CN_UPDATE_COMMAND_UI, (WORD)(id), (WORD)(idLast), AfxSigCmdUI, AFX_HANDLER_(CCmdTarget, void, (CCmdUI*), memberFxn) },

#define ON_NOTIFY(wNotifyCode, id, memberFxn) \
    { WM_NOTIFY, (WORD)(int)(wNotifyCode), (WORD)(id), (WORD)(id), AfxSigNotify_v, AFX_HANDLER_(CCmdTarget, void, (NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn) \
    { WM_NOTIFY, (WORD)(int)(wNotifyCode), (WORD)(id), (WORD)(idLast), AfxSigNotify_RANGE, AFX_HANDLER_(CCmdTarget, void, (UINT, NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) \
    { WM_NOTIFY, (WORD)(int)(wNotifyCode), (WORD)(id), (WORD)(id), AfxSigNotify_EX_RANGE, AFX_HANDLER_(CCmdTarget, BOOL, (UINT, NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn) \
    { WM_NOTIFY, (WORD)(int)(wNotifyCode), (WORD)(id), (WORD)(idLast), AfxSigNotify_EX_RANGE, AFX_HANDLER_(CCmdTarget, BOOL, (UINT, NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn) \
    { WM_NOTIFY + WM_REFLECT_BASE, (WORD)(int)(wNotifyCode), 0, 0, AfxSigNotify_v, AFX_HANDLER_(CCmdTarget, void, (NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn) \
    { WM_NOTIFY + WM_REFLECT_BASE, (WORD)(int)(wNotifyCode), 0, 0, AfxSigNotify_b, AFX_HANDLER_(CCmdTarget, BOOL, (NMHDR*, LRESULT*), memberFxn) },

#define ON_CONTROL(wNotifyCode, id, memberFxn) \
    { WM_COMMAND, (WORD)(wNotifyCode), (WORD)(id), (WORD)(id), AfxSigCmd_v, AFX_HANDLER_(CCmdTarget, void, (), memberFxn) },
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn) \
    { WM_COMMAND, (WORD)(wNotifyCode), (WORD)(id), (WORD)(idLast), AfxSigCmd_RANGE, AFX_HANDLER_(CCmdTarget, void, (UINT), memberFxn) },
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn) \
    { WM_COMMAND + WM_REFLECT_BASE, (WORD)(wNotifyCode), 0, 0, AfxSigCmd_v, AFX_HANDLER_(CCmdTarget, void, (), memberFxn) },
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn) \
    { WM_COMMAND + WM_REFLECT_BASE, (WORD)(wNotifyCode), 0, 0, AfxSigCmd_b, AFX_HANDLER_(CCmdTarget, BOOL, (), memberFxn) },

// Messages of the program's own ---------------------------------------------------------------------------

#define ON_MESSAGE(message, memberFxn) \
    { (message), 0, 0, 0, AfxSig_l_w_l, AFX_HANDLER_(CWnd, LRESULT, (WPARAM, LPARAM), memberFxn) },
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) \
    { 0xC000, 0, 0, 0, (UINT_PTR)(UINT*)(&nMessageVariable), AFX_HANDLER_(CWnd, LRESULT, (WPARAM, LPARAM), memberFxn) },

// Messages that are posted to a thread, handled by void OnDone(WPARAM, LPARAM) of its class
#define ON_THREAD_MESSAGE(message, memberFxn) \
    { (message), 0, 0, 0, AfxSig_v_w_l, AFX_HANDLER_(CWinThread, void, (WPARAM, LPARAM), memberFxn) },
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn) \
    { 0xC000, 0, 0, 0, (UINT_PTR)(UINT*)(&nMessageVariable), AFX_HANDLER_(CWinThread, void, (WPARAM, LPARAM), memberFxn) },

// Creation and destruction ----------------------------------------------------------------------------

#define ON_WM_CREATE() \
    { WM_CREATE, 0, 0, 0, AfxSig_i_v_s, AFX_HANDLER_(CWnd, int, (LPCREATESTRUCT), &ThisClass::OnCreate) },
#define ON_WM_DESTROY() \
    { WM_DESTROY, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnDestroy) },
#define ON_WM_CLOSE() \
    { WM_CLOSE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnClose) },
#define ON_WM_NCCREATE() \
    { WM_NCCREATE, 0, 0, 0, AfxSig_b_v_s, AFX_HANDLER_(CWnd, BOOL, (LPCREATESTRUCT), &ThisClass::OnNcCreate) },
#define ON_WM_NCDESTROY() \
    { WM_NCDESTROY, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnNcDestroy) },
#define ON_WM_QUERYENDSESSION() \
    { WM_QUERYENDSESSION, 0, 0, 0, AfxSig_b_v_v, AFX_HANDLER_(CWnd, BOOL, (), &ThisClass::OnQueryEndSession) },
#define ON_WM_ENDSESSION() \
    { WM_ENDSESSION, 0, 0, 0, AfxSig_v_b_v, AFX_HANDLER_(CWnd, void, (BOOL), &ThisClass::OnEndSession) },

// Position, size, style, state ------------------------------------------------------------------------

#define ON_WM_MOVE() \
    { WM_MOVE, 0, 0, 0, AfxSig_v_v_ii, AFX_HANDLER_(CWnd, void, (int, int), &ThisClass::OnMove) },
#define ON_WM_MOVING() \
    { WM_MOVING, 0, 0, 0, AfxSig_SIZING, AFX_HANDLER_(CWnd, void, (UINT, LPRECT), &ThisClass::OnMoving) },
#define ON_WM_SIZE() \
    { WM_SIZE, 0, 0, 0, AfxSig_v_u_ii, AFX_HANDLER_(CWnd, void, (UINT, int, int), &ThisClass::OnSize) },
#define ON_WM_SIZING() \
    { WM_SIZING, 0, 0, 0, AfxSig_SIZING, AFX_HANDLER_(CWnd, void, (UINT, LPRECT), &ThisClass::OnSizing) },
#define ON_WM_ENTERSIZEMOVE() \
    { WM_ENTERSIZEMOVE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnEnterSizeMove) },
#define ON_WM_EXITSIZEMOVE() \
    { WM_EXITSIZEMOVE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnExitSizeMove) },
#define ON_WM_GETMINMAXINFO() \
    { WM_GETMINMAXINFO, 0, 0, 0, AfxSig_v_v_s, AFX_HANDLER_(CWnd, void, (MINMAXINFO*), &ThisClass::OnGetMinMaxInfo) },
#define ON_WM_WINDOWPOSCHANGING() \
    { WM_WINDOWPOSCHANGING, 0, 0, 0, AfxSig_v_v_s, AFX_HANDLER_(CWnd, void, (WINDOWPOS*), &ThisClass::OnWindowPosChanging) },
#define ON_WM_WINDOWPOSCHANGED() \
    { WM_WINDOWPOSCHANGED, 0, 0, 0, AfxSig_v_v_s, AFX_HANDLER_(CWnd, void, (WINDOWPOS*), &ThisClass::OnWindowPosChanged) },
#define ON_WM_STYLECHANGING() \
    { WM_STYLECHANGING, 0, 0, 0, AfxSig_v_i_s, AFX_HANDLER_(CWnd, void, (int, LPSTYLESTRUCT), &ThisClass::OnStyleChanging) },
#define ON_WM_STYLECHANGED() \
    { WM_STYLECHANGED, 0, 0, 0, AfxSig_v_i_s, AFX_HANDLER_(CWnd, void, (int, LPSTYLESTRUCT), &ThisClass::OnStyleChanged) },
#define ON_WM_SHOWWINDOW() \
    { WM_SHOWWINDOW, 0, 0, 0, AfxSig_v_b_u, AFX_HANDLER_(CWnd, void, (BOOL, UINT), &ThisClass::OnShowWindow) },
#define ON_WM_ENABLE() \
    { WM_ENABLE, 0, 0, 0, AfxSig_v_b_v, AFX_HANDLER_(CWnd, void, (BOOL), &ThisClass::OnEnable) },
#define ON_WM_ACTIVATE() \
    { WM_ACTIVATE, 0, 0, 0, AfxSig_ACTIVATE, AFX_HANDLER_(CWnd, void, (UINT, CWnd*, BOOL), &ThisClass::OnActivate) },
#define ON_WM_ACTIVATEAPP() \
    { WM_ACTIVATEAPP, 0, 0, 0, AfxSig_v_b_u32, AFX_HANDLER_(CWnd, void, (BOOL, DWORD), &ThisClass::OnActivateApp) },
#define ON_WM_CHILDACTIVATE() \
    { WM_CHILDACTIVATE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnChildActivate) },
#define ON_WM_MDIACTIVATE() \
    { WM_MDIACTIVATE, 0, 0, 0, AfxSig_v_b_W_W, AFX_HANDLER_(CWnd, void, (BOOL, CWnd*, CWnd*), &ThisClass::OnMDIActivate) },
#define ON_WM_SETFOCUS() \
    { WM_SETFOCUS, 0, 0, 0, AfxSig_v_W_v, AFX_HANDLER_(CWnd, void, (CWnd*), &ThisClass::OnSetFocus) },
#define ON_WM_KILLFOCUS() \
    { WM_KILLFOCUS, 0, 0, 0, AfxSig_v_W_v, AFX_HANDLER_(CWnd, void, (CWnd*), &ThisClass::OnKillFocus) },
#define ON_WM_CANCELMODE() \
    { WM_CANCELMODE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnCancelMode) },
#define ON_WM_QUERYOPEN() \
    { WM_QUERYOPEN, 0, 0, 0, AfxSig_b_v_v, AFX_HANDLER_(CWnd, BOOL, (), &ThisClass::OnQueryOpen) },
#define ON_WM_QUERYDRAGICON() \
    { WM_QUERYDRAGICON, 0, 0, 0, AfxSig_h_v_v, AFX_HANDLER_(CWnd, HCURSOR, (), &ThisClass::OnQueryDragIcon) },
#define ON_WM_PARENTNOTIFY() \
    { WM_PARENTNOTIFY, 0, 0, 0, AfxSig_v_u_l, AFX_HANDLER_(CWnd, void, (UINT, LPARAM), &ThisClass::OnParentNotify) },
#define ON_WM_CHANGEUISTATE() \
    { WM_CHANGEUISTATE, 0, 0, 0, AfxSig_SCROLL_REFLECT, AFX_HANDLER_(CWnd, void, (UINT, UINT), &ThisClass::OnChangeUIState) },
#define ON_WM_UPDATEUISTATE() \
    { WM_UPDATEUISTATE, 0, 0, 0, AfxSig_SCROLL_REFLECT, AFX_HANDLER_(CWnd, void, (UINT, UINT), &ThisClass::OnUpdateUIState) },
#define ON_WM_QUERYUISTATE() \
    { WM_QUERYUISTATE, 0, 0, 0, AfxSig_u_v_v, AFX_HANDLER_(CWnd, UINT, (), &ThisClass::OnQueryUIState) },
#define ON_WM_ENTERIDLE() \
    { WM_ENTERIDLE, 0, 0, 0, AfxSig_v_u_W, AFX_HANDLER_(CWnd, void, (UINT, CWnd*), &ThisClass::OnEnterIdle) },

// Painting and colours --------------------------------------------------------------------------------

#define ON_WM_PAINT() \
    { WM_PAINT, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnPaint) },
#define ON_WM_ERASEBKGND() \
    { WM_ERASEBKGND, 0, 0, 0, AfxSig_b_D_v, AFX_HANDLER_(CWnd, BOOL, (CDC*), &ThisClass::OnEraseBkgnd) },
#define ON_WM_ICONERASEBKGND() \
    { WM_ICONERASEBKGND, 0, 0, 0, AfxSig_v_D_v, AFX_HANDLER_(CWnd, void, (CDC*), &ThisClass::OnIconEraseBkgnd) },
#define ON_WM_CTLCOLOR() \
    { WM_CTLCOLOR, 0, 0, 0, AfxSig_CTLCOLOR, AFX_HANDLER_(CWnd, HBRUSH, (CDC*, CWnd*, UINT), &ThisClass::OnCtlColor) },
#define ON_WM_SYSCOLORCHANGE() \
    { WM_SYSCOLORCHANGE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnSysColorChange) },
#define ON_WM_THEMECHANGED() \
    { WM_THEMECHANGED, 0, 0, 0, AfxSig_l_v_v, AFX_HANDLER_(CWnd, LRESULT, (), &ThisClass::OnThemeChanged) },
#define ON_WM_QUERYNEWPALETTE() \
    { WM_QUERYNEWPALETTE, 0, 0, 0, AfxSig_b_v_v, AFX_HANDLER_(CWnd, BOOL, (), &ThisClass::OnQueryNewPalette) },
#define ON_WM_PALETTEISCHANGING() \
    { WM_PALETTEISCHANGING, 0, 0, 0, AfxSig_v_W_v, AFX_HANDLER_(CWnd, void, (CWnd*), &ThisClass::OnPaletteIsChanging) },
#define ON_WM_PALETTECHANGED() \
    { WM_PALETTECHANGED, 0, 0, 0, AfxSig_v_W_v, AFX_HANDLER_(CWnd, void, (CWnd*), &ThisClass::OnPaletteChanged) },

// Non-client area -------------------------------------------------------------------------------------

#define ON_WM_NCACTIVATE() \
    { WM_NCACTIVATE, 0, 0, 0, AfxSig_b_b_v, AFX_HANDLER_(CWnd, BOOL, (BOOL), &ThisClass::OnNcActivate) },
#define ON_WM_NCCALCSIZE() \
    { WM_NCCALCSIZE, 0, 0, 0, AfxSig_v_b_NCCALCSIZEPARAMS, AFX_HANDLER_(CWnd, void, (BOOL, NCCALCSIZE_PARAMS*), &ThisClass::OnNcCalcSize) },
#define ON_WM_NCHITTEST() \
    { WM_NCHITTEST, 0, 0, 0, AfxSig_l_p, AFX_HANDLER_(CWnd, LRESULT, (CPoint), &ThisClass::OnNcHitTest) },
#define ON_WM_NCPAINT() \
    { WM_NCPAINT, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnNcPaint) },
#define ON_WM_NCMOUSEMOVE() \
    { WM_NCMOUSEMOVE, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcMouseMove) },
#define ON_WM_NCMOUSEHOVER() \
    { WM_NCMOUSEHOVER, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcMouseHover) },
#define ON_WM_NCMOUSELEAVE() \
    { WM_NCMOUSELEAVE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnNcMouseLeave) },
#define ON_WM_NCLBUTTONDOWN() \
    { WM_NCLBUTTONDOWN, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcLButtonDown) },
#define ON_WM_NCLBUTTONUP() \
    { WM_NCLBUTTONUP, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcLButtonUp) },
#define ON_WM_NCLBUTTONDBLCLK() \
    { WM_NCLBUTTONDBLCLK, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcLButtonDblClk) },
#define ON_WM_NCRBUTTONDOWN() \
    { WM_NCRBUTTONDOWN, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcRButtonDown) },
#define ON_WM_NCRBUTTONUP() \
    { WM_NCRBUTTONUP, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcRButtonUp) },
#define ON_WM_NCRBUTTONDBLCLK() \
    { WM_NCRBUTTONDBLCLK, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcRButtonDblClk) },
#define ON_WM_NCMBUTTONDOWN() \
    { WM_NCMBUTTONDOWN, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcMButtonDown) },
#define ON_WM_NCMBUTTONUP() \
    { WM_NCMBUTTONUP, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcMButtonUp) },
#define ON_WM_NCMBUTTONDBLCLK() \
    { WM_NCMBUTTONDBLCLK, 0, 0, 0, AfxSig_v_hit_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnNcMButtonDblClk) },

// Keyboard --------------------------------------------------------------------------------------------

#define ON_WM_CHAR() \
    { WM_CHAR, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnChar) },
#define ON_WM_DEADCHAR() \
    { WM_DEADCHAR, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnDeadChar) },
#define ON_WM_KEYDOWN() \
    { WM_KEYDOWN, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnKeyDown) },
#define ON_WM_KEYUP() \
    { WM_KEYUP, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnKeyUp) },
#define ON_WM_SYSCHAR() \
    { WM_SYSCHAR, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnSysChar) },
#define ON_WM_SYSDEADCHAR() \
    { WM_SYSDEADCHAR, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnSysDeadChar) },
#define ON_WM_SYSKEYDOWN() \
    { WM_SYSKEYDOWN, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnSysKeyDown) },
#define ON_WM_SYSKEYUP() \
    { WM_SYSKEYUP, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnSysKeyUp) },
#define ON_WM_GETDLGCODE() \
    { WM_GETDLGCODE, 0, 0, 0, AfxSig_u_v_v, AFX_HANDLER_(CWnd, UINT, (), &ThisClass::OnGetDlgCode) },
#define ON_WM_HOTKEY() \
    { WM_HOTKEY, 0, 0, 0, AfxSig_v_u_u_l, AFX_HANDLER_(CWnd, void, (UINT, UINT, UINT), &ThisClass::OnHotKey) },
#define ON_WM_INPUTLANGCHANGE() \
    { WM_INPUTLANGCHANGE, 0, 0, 0, AfxSig_v_uu_v, AFX_HANDLER_(CWnd, void, (UINT, UINT), &ThisClass::OnInputLangChange) },
#define ON_WM_INPUTLANGCHANGEREQUEST() \
    { WM_INPUTLANGCHANGEREQUEST, 0, 0, 0, AfxSig_v_uu_v, AFX_HANDLER_(CWnd, void, (UINT, UINT), &ThisClass::OnInputLangChangeRequest) },
#define ON_WM_HELPINFO() \
    { WM_HELP, 0, 0, 0, AfxSig_b_v_HELPINFO, AFX_HANDLER_(CWnd, BOOL, (HELPINFO*), &ThisClass::OnHelpInfo) },

// Mouse -----------------------------------------------------------------------------------------------

#define ON_WM_MOUSEMOVE() \
    { WM_MOUSEMOVE, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnMouseMove) },
#define ON_WM_LBUTTONDOWN() \
    { WM_LBUTTONDOWN, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnLButtonDown) },
#define ON_WM_LBUTTONUP() \
    { WM_LBUTTONUP, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnLButtonUp) },
#define ON_WM_LBUTTONDBLCLK() \
    { WM_LBUTTONDBLCLK, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnLButtonDblClk) },
#define ON_WM_RBUTTONDOWN() \
    { WM_RBUTTONDOWN, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnRButtonDown) },
#define ON_WM_RBUTTONUP() \
    { WM_RBUTTONUP, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnRButtonUp) },
#define ON_WM_RBUTTONDBLCLK() \
    { WM_RBUTTONDBLCLK, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnRButtonDblClk) },
#define ON_WM_MBUTTONDOWN() \
    { WM_MBUTTONDOWN, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnMButtonDown) },
#define ON_WM_MBUTTONUP() \
    { WM_MBUTTONUP, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnMButtonUp) },
#define ON_WM_MBUTTONDBLCLK() \
    { WM_MBUTTONDBLCLK, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnMButtonDblClk) },
#define ON_WM_XBUTTONDOWN() \
    { WM_XBUTTONDOWN, 0, 0, 0, AfxSig_v_u_u_p, AFX_HANDLER_(CWnd, void, (UINT, UINT, CPoint), &ThisClass::OnXButtonDown) },
#define ON_WM_XBUTTONUP() \
    { WM_XBUTTONUP, 0, 0, 0, AfxSig_v_u_u_p, AFX_HANDLER_(CWnd, void, (UINT, UINT, CPoint), &ThisClass::OnXButtonUp) },
#define ON_WM_XBUTTONDBLCLK() \
    { WM_XBUTTONDBLCLK, 0, 0, 0, AfxSig_v_u_u_p, AFX_HANDLER_(CWnd, void, (UINT, UINT, CPoint), &ThisClass::OnXButtonDblClk) },
#define ON_WM_MOUSEHOVER() \
    { WM_MOUSEHOVER, 0, 0, 0, AfxSig_v_u_p, AFX_HANDLER_(CWnd, void, (UINT, CPoint), &ThisClass::OnMouseHover) },
#define ON_WM_MOUSELEAVE() \
    { WM_MOUSELEAVE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnMouseLeave) },
#define ON_WM_MOUSEWHEEL() \
    { WM_MOUSEWHEEL, 0, 0, 0, AfxSig_MOUSEWHEEL, AFX_HANDLER_(CWnd, BOOL, (UINT, short, CPoint), &ThisClass::OnMouseWheel) },
#define ON_WM_MOUSEACTIVATE() \
    { WM_MOUSEACTIVATE, 0, 0, 0, AfxSig_i_W_uu, AFX_HANDLER_(CWnd, int, (CWnd*, UINT, UINT), &ThisClass::OnMouseActivate) },
#define ON_WM_CAPTURECHANGED() \
    { WM_CAPTURECHANGED, 0, 0, 0, AfxSig_v_v_W, AFX_HANDLER_(CWnd, void, (CWnd*), &ThisClass::OnCaptureChanged) },
#define ON_WM_SETCURSOR() \
    { WM_SETCURSOR, 0, 0, 0, AfxSig_b_W_uu, AFX_HANDLER_(CWnd, BOOL, (CWnd*, UINT, UINT), &ThisClass::OnSetCursor) },
#define ON_WM_CONTEXTMENU() \
    { WM_CONTEXTMENU, 0, 0, 0, AfxSig_v_W_p, AFX_HANDLER_(CWnd, void, (CWnd*, CPoint), &ThisClass::OnContextMenu) },
#define ON_WM_DROPFILES() \
    { WM_DROPFILES, 0, 0, 0, AfxSig_v_h_v, AFX_HANDLER_(CWnd, void, (HDROP), &ThisClass::OnDropFiles) },

// Scrolling, timers, menus ----------------------------------------------------------------------------

#define ON_WM_HSCROLL() \
    { WM_HSCROLL, 0, 0, 0, AfxSig_SCROLL, AFX_HANDLER_(CWnd, void, (UINT, UINT, CScrollBar*), &ThisClass::OnHScroll) },
#define ON_WM_VSCROLL() \
    { WM_VSCROLL, 0, 0, 0, AfxSig_SCROLL, AFX_HANDLER_(CWnd, void, (UINT, UINT, CScrollBar*), &ThisClass::OnVScroll) },
#define ON_WM_TIMER() \
    { WM_TIMER, 0, 0, 0, AfxSig_v_up_v, AFX_HANDLER_(CWnd, void, (UINT_PTR), &ThisClass::OnTimer) },
#define ON_WM_INITMENU() \
    { WM_INITMENU, 0, 0, 0, AfxSig_v_M_v, AFX_HANDLER_(CWnd, void, (CMenu*), &ThisClass::OnInitMenu) },
#define ON_WM_INITMENUPOPUP() \
    { WM_INITMENUPOPUP, 0, 0, 0, AfxSig_v_M_ub, AFX_HANDLER_(CWnd, void, (CMenu*, UINT, BOOL), &ThisClass::OnInitMenuPopup) },
#define ON_WM_MENUSELECT() \
    { WM_MENUSELECT, 0, 0, 0, AfxSig_v_uu_h, AFX_HANDLER_(CWnd, void, (UINT, UINT, HMENU), &ThisClass::OnMenuSelect) },
#define ON_WM_MENUCHAR() \
    { WM_MENUCHAR, 0, 0, 0, AfxSig_l_uu_M, AFX_HANDLER_(CWnd, LRESULT, (UINT, UINT, CMenu*), &ThisClass::OnMenuChar) },
#define ON_WM_ENTERMENULOOP() \
    { WM_ENTERMENULOOP, 0, 0, 0, AfxSig_v_b_v, AFX_HANDLER_(CWnd, void, (BOOL), &ThisClass::OnEnterMenuLoop) },
#define ON_WM_EXITMENULOOP() \
    { WM_EXITMENULOOP, 0, 0, 0, AfxSig_v_b_v, AFX_HANDLER_(CWnd, void, (BOOL), &ThisClass::OnExitMenuLoop) },
#define ON_WM_SYSCOMMAND() \
    { WM_SYSCOMMAND, 0, 0, 0, AfxSig_v_u_l, AFX_HANDLER_(CWnd, void, (UINT, LPARAM), &ThisClass::OnSysCommand) },

// Owner-drawn and list controls -----------------------------------------------------------------------

#define ON_WM_DRAWITEM() \
    { WM_DRAWITEM, 0, 0, 0, AfxSig_v_i_s, AFX_HANDLER_(CWnd, void, (int, LPDRAWITEMSTRUCT), &ThisClass::OnDrawItem) },
#define ON_WM_MEASUREITEM() \
    { WM_MEASUREITEM, 0, 0, 0, AfxSig_v_i_s, AFX_HANDLER_(CWnd, void, (int, LPMEASUREITEMSTRUCT), &ThisClass::OnMeasureItem) },
#define ON_WM_DELETEITEM() \
    { WM_DELETEITEM, 0, 0, 0, AfxSig_v_i_s, AFX_HANDLER_(CWnd, void, (int, LPDELETEITEMSTRUCT), &ThisClass::OnDeleteItem) },
#define ON_WM_COMPAREITEM() \
    { WM_COMPAREITEM, 0, 0, 0, AfxSig_i_u_s, AFX_HANDLER_(CWnd, int, (int, LPCOMPAREITEMSTRUCT), &ThisClass::OnCompareItem) },
#define ON_WM_CHARTOITEM() \
    { WM_CHARTOITEM, 0, 0, 0, AfxSig_i_u_W_u, AFX_HANDLER_(CWnd, int, (UINT, CListBox*, UINT), &ThisClass::OnCharToItem) },
#define ON_WM_VKEYTOITEM() \
    { WM_VKEYTOITEM, 0, 0, 0, AfxSig_i_u_W_u, AFX_HANDLER_(CWnd, int, (UINT, CListBox*, UINT), &ThisClass::OnVKeyToItem) },

// System and session ----------------------------------------------------------------------------------

#define ON_WM_SETTINGCHANGE() \
    { WM_SETTINGCHANGE, 0, 0, 0, AfxSig_v_u_s, AFX_HANDLER_(CWnd, void, (UINT, LPCTSTR), &ThisClass::OnSettingChange) },
#define ON_WM_WININICHANGE() \
    { WM_WININICHANGE, 0, 0, 0, AfxSig_v_v_s, AFX_HANDLER_(CWnd, void, (LPCTSTR), &ThisClass::OnWinIniChange) },
#define ON_WM_FONTCHANGE() \
    { WM_FONTCHANGE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnFontChange) },
#define ON_WM_TIMECHANGE() \
    { WM_TIMECHANGE, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnTimeChange) },
#define ON_WM_USERCHANGED() \
    { WM_USERCHANGED, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnUserChanged) },
#define ON_WM_DEVMODECHANGE() \
    { WM_DEVMODECHANGE, 0, 0, 0, AfxSig_v_v_s, AFX_HANDLER_(CWnd, void, (LPTSTR), &ThisClass::OnDevModeChange) },
#define ON_WM_DEVICECHANGE() \
    { WM_DEVICECHANGE, 0, 0, 0, AfxSig_b_u_DWORD, AFX_HANDLER_(CWnd, BOOL, (UINT, DWORD_PTR), &ThisClass::OnDeviceChange) },
#define ON_WM_COMPACTING() \
    { WM_COMPACTING, 0, 0, 0, AfxSig_v_u_v, AFX_HANDLER_(CWnd, void, (UINT), &ThisClass::OnCompacting) },
#define ON_WM_SPOOLERSTATUS() \
    { WM_SPOOLERSTATUS, 0, 0, 0, AfxSig_v_uu_v, AFX_HANDLER_(CWnd, void, (UINT, UINT), &ThisClass::OnSpoolerStatus) },
#define ON_WM_COPYDATA() \
    { WM_COPYDATA, 0, 0, 0, AfxSig_b_W_COPYDATASTRUCT, AFX_HANDLER_(CWnd, BOOL, (CWnd*, COPYDATASTRUCT*), &ThisClass::OnCopyData) },

// Clipboard -------------------------------------------------------------------------------------------

#define ON_WM_CHANGECBCHAIN() \
    { WM_CHANGECBCHAIN, 0, 0, 0, AfxSig_v_h_h, AFX_HANDLER_(CWnd, void, (HWND, HWND), &ThisClass::OnChangeCbChain) },
#define ON_WM_DRAWCLIPBOARD() \
    { WM_DRAWCLIPBOARD, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnDrawClipboard) },
#define ON_WM_DESTROYCLIPBOARD() \
    { WM_DESTROYCLIPBOARD, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnDestroyClipboard) },
#define ON_WM_RENDERFORMAT() \
    { WM_RENDERFORMAT, 0, 0, 0, AfxSig_v_u_v, AFX_HANDLER_(CWnd, void, (UINT), &ThisClass::OnRenderFormat) },
#define ON_WM_RENDERALLFORMATS() \
    { WM_RENDERALLFORMATS, 0, 0, 0, AfxSig_v_v_v, AFX_HANDLER_(CWnd, void, (), &ThisClass::OnRenderAllFormats) },

// Sent back to the control by its parent ----------------------------------------------------------------

#define ON_WM_CTLCOLOR_REFLECT() \
    { WM_CTLCOLOR + WM_REFLECT_BASE, 0, 0, 0, AfxSig_CTLCOLOR_REFLECT, AFX_HANDLER_(CWnd, HBRUSH, (CDC*, UINT), &ThisClass::CtlColor) },
#define ON_WM_DRAWITEM_REFLECT() \
    { WM_DRAWITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_v_v_s, AFX_HANDLER_(CWnd, void, (LPDRAWITEMSTRUCT), &ThisClass::DrawItem) },
#define ON_WM_MEASUREITEM_REFLECT() \
    { WM_MEASUREITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_v_v_s, AFX_HANDLER_(CWnd, void, (LPMEASUREITEMSTRUCT), &ThisClass::MeasureItem) },
#define ON_WM_DELETEITEM_REFLECT() \
    { WM_DELETEITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_v_v_s, AFX_HANDLER_(CWnd, void, (LPDELETEITEMSTRUCT), &ThisClass::DeleteItem) },
#define ON_WM_COMPAREITEM_REFLECT() \
    { WM_COMPAREITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_i_v_s, AFX_HANDLER_(CWnd, int, (LPCOMPAREITEMSTRUCT), &ThisClass::CompareItem) },
#define ON_WM_CHARTOITEM_REFLECT() \
    { WM_CHARTOITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_i_uu_v, AFX_HANDLER_(CWnd, int, (UINT, UINT), &ThisClass::CharToItem) },
#define ON_WM_VKEYTOITEM_REFLECT() \
    { WM_VKEYTOITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_i_uu_v, AFX_HANDLER_(CWnd, int, (UINT, UINT), &ThisClass::VKeyToItem) },
#define ON_WM_HSCROLL_REFLECT() \
    { WM_HSCROLL + WM_REFLECT_BASE, 0, 0, 0, AfxSig_SCROLL_REFLECT, AFX_HANDLER_(CWnd, void, (UINT, UINT), &ThisClass::HScroll) },
#define ON_WM_VSCROLL_REFLECT() \
    { WM_VSCROLL + WM_REFLECT_BASE, 0, 0, 0, AfxSig_SCROLL_REFLECT, AFX_HANDLER_(CWnd, void, (UINT, UINT), &ThisClass::VScroll) },
#define ON_WM_PARENTNOTIFY_REFLECT() \
    { WM_PARENTNOTIFY + WM_REFLECT_BASE, 0, 0, 0, AfxSig_v_u_l, AFX_HANDLER_(CWnd, void, (UINT, LPARAM), &ThisClass::ParentNotify) },

// Static control --------------------------------------------------------------------------------------

#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)

// Button ----------------------------------------------------------------------------------------------

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)

// Edit control ----------------------------------------------------------------------------------------

#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)

// List box --------------------------------------------------------------------------------------------

#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)

// Combo box -------------------------------------------------------------------------------------------

#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)

// clang-format on
