// Commands, menus, popup menus, notifications, and macros.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/selection.h"
#include "toolkit/types.h"

typedef struct user_command* uiCmdCmdId;
typedef void uiCmdValue;
typedef int uiCmdPriority;
typedef int uiCmdAccessMode;

typedef int (*uiCmdCmdActFn)(uiCmdCmdId command, uiCmdValue* value, void* data) QM_CALLBACK;
typedef uiCmdAccessState (*uiCmdAccessFn)(uiCmdAccessMode mode) QM_CALLBACK;
typedef uiCmdAccessState (*ProPopupAccessFn)(uiCmdCmdId command, ProAppData data,
                                             ProSelection* selections) QM_CALLBACK;

// A number or a pointer: not known, and right for both when it is zeroed before a call fills it.
typedef void* ProPopupMenuId;

typedef ProError (*ProFunction)() QM_CALLBACK;
typedef ProError (*ProPopupCreateAction)(char* menu_name) QM_CALLBACK;

PRO_FUNCTION(ProError, ProCmdActionAdd, const char* name, uiCmdCmdActFn action,
             uiCmdPriority priority, uiCmdAccessFn access, ProBoolean in_non_active_window,
             ProBoolean in_accessory_window, uiCmdCmdId* command);
PRO_FUNCTION(ProError, ProCmdIconSet, uiCmdCmdId command, const char* icon_file);
PRO_FUNCTION(ProError, ProCmdDesignate, uiCmdCmdId command, const char* label, const char* help,
             const char* description, wchar_t* message_file);
PRO_FUNCTION(ProError, ProCmdCmdIdFind, const char* name, uiCmdCmdId* command);

PRO_FUNCTION(ProError, ProMenubarMenuAdd, const char* menu, const char* label,
             const char* neighbour, ProBoolean add_after, wchar_t* message_file);
PRO_FUNCTION(ProError, ProMenubarmenuPushbuttonAdd, const char* menu, const char* button,
             const char* label, const char* help, const char* neighbour, ProBoolean add_after,
             uiCmdCmdId command, wchar_t* message_file);

PRO_FUNCTION(ProError, ProPopupmenuIdGet, const char* menu, ProPopupMenuId* id);
// `position` PRO_VALUE_UNUSED appends.
PRO_FUNCTION(ProError, ProPopupmenuButtonAdd, ProPopupMenuId menu, int position, const char* button,
             wchar_t* label, wchar_t* help, uiCmdCmdId command, ProPopupAccessFn access,
             ProAppData data);

// A null callback removes the notification.
PRO_FUNCTION(ProError, ProNotificationSet, ProNotifyType type, ProFunction callback);

// The macro is copied and queued: it runs after the command, and the answer says nothing of its
// success.
PRO_FUNCTION(ProError, ProMacroLoad, wchar_t* macro);
