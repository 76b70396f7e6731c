// Numbers of dialog templates, controls and pictures, for the resource script, the program and the tests.
// Scripts that drive the dialogs from outside may use them, so none is ever changed. Two dialogs may use the
// same number. Plain defines, because
// the resource compiler reads this file too.
#ifndef QUORL_CONTROL_IDS_H
#define QUORL_CONTROL_IDS_H

#define IDD_OPTIONS 101
#define IDD_HELP 106
#define IDD_ABOUT 107
#define IDD_NAME_REGION 108
#define IDD_RESIZE_WINDOWS 111
#define IDD_ACTIONS 113
#define IDD_CUSTOMIZE_MENU 116
#define IDD_FIND 117 // of windows and of regions
#define IDD_TRANSPARENCY 120

#define IDI_QUORL 118
#define IDB_ABOUT 119
#define IDI_ARROW_DOWN 121
#define IDI_ARROW_UP 122

#define IDC_OPTIONS_ACTIONS 3
#define IDC_OPTIONS_HEIGHT 1000
#define IDC_OPTIONS_WIDTH 1001
#define IDC_OPTIONS_BORDER 1002
#define IDC_OPTIONS_DELAY_TIME 1003
#define IDC_OPTIONS_MAXSCROLL 1007
#define IDC_OPTIONS_MINSCROLL 1008
#define IDC_OPTIONS_MOUSESCROLL 1009
#define IDC_OPTIONS_HEIGHT_MORE 1022 // the four are hidden; the spinners replaced them
#define IDC_OPTIONS_HEIGHT_LESS 1023
#define IDC_OPTIONS_WIDTH_MORE 1024
#define IDC_OPTIONS_WIDTH_LESS 1025
#define IDC_OPTIONS_MENUS 1064
#define IDC_OPTIONS_BY_MAX 1073
#define IDC_OPTIONS_BY_MIN 1074
#define IDC_OPTIONS_BY_MOUSE 1075
#define IDC_OPTIONS_BY_SCREEN 1076
#define IDC_OPTIONS_MOUSE_NOTE 1077
#define IDC_OPTIONS_AFTER_TIME 1078
#define IDC_OPTIONS_AT_ONCE 1079
#define IDC_OPTIONS_LEFT_CLICK 1080
#define IDC_OPTIONS_RIGHT_CLICK 1082     // hidden
#define IDC_OPTIONS_HEIGHT_SPINNER 54321 // created at run time
#define IDC_OPTIONS_WIDTH_SPINNER 54322

#define IDC_HELP_TEXT 1068

#define IDC_ABOUT_CONTACT 1011
#define IDC_ABOUT_PROGRAM 1072

#define IDC_REGION_DELETE 3
#define IDC_REGION_NAME 1025
#define IDC_REGION_COLOR 1040

#define IDC_RESIZE_APPLY 2 // the number that other dialogs give to Cancel
#define IDC_RESIZE_HEIGHT 1000
#define IDC_RESIZE_WIDTH 1001
#define IDC_RESIZE_LIST 1041
#define IDC_RESIZE_DESKTOP 1043
#define IDC_RESIZE_OK 1044

#define IDC_ACTIONS_SHIFT 1028
#define IDC_ACTIONS_ALT 1030
#define IDC_ACTIONS_CTRL 1031
#define IDC_ACTIONS_RIGHT 1033
#define IDC_ACTIONS_LEFT 1034
#define IDC_ACTIONS_MIDDLE 1035
#define IDC_ACTIONS_WIN 1036
#define IDC_ACTIONS_KEYS 1038
#define IDC_ACTIONS_GROUP 1049
#define IDC_ACTIONS_TABS 1050
#define IDC_ACTIONS_LIST 1051
#define IDC_ACTIONS_CLEAR 1052
#define IDC_ACTIONS_APPLY 1053
#define IDC_ACTIONS_CLEAR_ALL 1056 // this and the next are disabled
#define IDC_ACTIONS_DEFAULTS 1057
#define IDC_ACTIONS_WARNING 1069

#define IDC_MENU_ADD 3
#define IDC_MENU_REMOVE 4
#define IDC_MENU_INSERT_LINE 5
#define IDC_MENU_TEST 10
#define IDC_MENU_LIST 1061
#define IDC_MENU_ACTIONS 1062
#define IDC_MENU_UP 1065
#define IDC_MENU_DOWN 1066

#define IDC_FIND_LIST 1041

#define IDC_TRANSPARENCY_SLIDER 1079

#endif
