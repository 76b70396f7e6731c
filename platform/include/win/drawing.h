// Painting: invalid areas, contexts, drawing objects, text.
#pragma once

#include "types.h"

struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
};

struct DRAWTEXTPARAMS;

constexpr int COLOR_BACKGROUND = 1;
constexpr int COLOR_BTNFACE = 15;
constexpr int COLOR_INFOTEXT = 23;
constexpr int COLOR_INFOBK = 24;

constexpr int TRANSPARENT = 1;

constexpr int PS_SOLID = 0;
constexpr int PS_DOT = 2;

constexpr int R2_COPYPEN = 13;
constexpr int R2_MERGEPENNOT = 14;

constexpr int WHITE_PEN = 6; // for GetStockObject

constexpr int LOGPIXELSX = 88;

constexpr DWORD SRCCOPY = 0x00CC0020;

constexpr COLORREF CLR_INVALID = 0xffffffff;

constexpr UINT DT_WORDBREAK = 0x10;
constexpr UINT DT_NOPREFIX = 0x800;
constexpr UINT DT_END_ELLIPSIS = 0x8000;
constexpr UINT DT_MODIFYSTRING = 0x10000;

constexpr int FW_LIGHT = 300;

constexpr UINT EDGE_RAISED = 5;
constexpr UINT EDGE_SUNKEN = 10;
constexpr UINT BF_RECT = 15;

constexpr COLORREF RGB(int red, int green, int blue) {
    return static_cast<COLORREF>(red | green << 8 | blue << 16);
}

BOOL WINAPI InvalidateRect(HWND window, const RECT* rect, BOOL erase);
BOOL WINAPI UpdateWindow(HWND window);
HDC WINAPI BeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL WINAPI EndPaint(HWND window, const PAINTSTRUCT* paint);
HDC WINAPI GetDC(HWND window);
int WINAPI ReleaseDC(HWND window, HDC context);
int WINAPI GetDeviceCaps(HDC context, int index);

DWORD WINAPI GetSysColor(int index);
HBRUSH WINAPI GetSysColorBrush(int index);
HFONT WINAPI CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                         DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                         DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, LPCSTR face);
HBRUSH WINAPI CreateSolidBrush(COLORREF color);
HGDIOBJ WINAPI GetStockObject(int index);
HPEN WINAPI CreatePen(int style, int width, COLORREF color);
HGDIOBJ WINAPI SelectObject(HDC context, HGDIOBJ object);
BOOL WINAPI DeleteObject(HGDIOBJ object);

HDC WINAPI CreateCompatibleDC(HDC context);
BOOL WINAPI DeleteDC(HDC context);
HBITMAP WINAPI CreateCompatibleBitmap(HDC context, int width, int height);
BOOL WINAPI BitBlt(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY,
                   DWORD operation);

COLORREF WINAPI SetTextColor(HDC context, COLORREF color);
int WINAPI SetBkMode(HDC context, int mode);
BOOL WINAPI GetTextExtentPoint32A(HDC context, LPCSTR text, int length, SIZE* extent);
int WINAPI DrawTextExA(HDC context, LPSTR text, int length, RECT* rect, UINT format, DRAWTEXTPARAMS* params);

BOOL WINAPI GetTextExtentPoint32W(HDC context, LPCWSTR text, int length, SIZE* extent);
int WINAPI DrawTextExW(HDC context, LPWSTR text, int length, RECT* rect, UINT format, DRAWTEXTPARAMS* params);

int WINAPI SetROP2(HDC context, int mode);
BOOL WINAPI MoveToEx(HDC context, int x, int y, POINT* before);
BOOL WINAPI LineTo(HDC context, int x, int y);
BOOL WINAPI Rectangle(HDC context, int left, int top, int right, int bottom);
BOOL WINAPI DrawEdge(HDC context, RECT* rect, UINT edge, UINT flags);
BOOL WINAPI Polygon(HDC context, const POINT* points, int count);
BOOL WINAPI DrawFocusRect(HDC context, const RECT* rect);
