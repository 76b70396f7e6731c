// The dialog that sets the opacity of the map, live.
#include "dialogs/transparency_dialog.h"

#include "core/state.h"
#include "dialogs/registry.h"
#include "resources/control_ids.h"

static void OnInit(HWND dialog) {
    if (!pSetLayeredWindowAttributes) {
        MessageBoxA(dialog, "Transparency cannot be done on this OS.", "Blame Microsoft!", MB_OK);
        return;
    }
    const OptionDef& limits = OptionDefs[OPTION_ALPHA];
    SendDlgItemMessageA(dialog, IDC_TRANSPARENCY_SLIDER, TBM_SETRANGE, TRUE,
                        MAKELPARAM(limits.userMin, limits.userMax));
    SendDlgItemMessageA(dialog, IDC_TRANSPARENCY_SLIDER, TBM_SETPOS, TRUE, static_cast<BYTE>(Options.alpha));
    ShowWindow(dialog, SW_SHOW);
}

static void ApplySlider(HWND dialog) {
    const LRESULT alpha = SendDlgItemMessageA(dialog, IDC_TRANSPARENCY_SLIDER, TBM_GETPOS, 0, 0);
    Options.alpha = static_cast<int>(alpha);
    if (pSetLayeredWindowAttributes)
        pSetLayeredWindowAttributes(MainWnd, 0, static_cast<BYTE>(alpha), LWA_ALPHA);
}

static void OnCommand(HWND dialog, int id) {
    if (id != IDOK)
        return;
    ApplySlider(dialog);
    CloseDialog(dialog);
}

INT_PTR CALLBACK TransparencyDlgProc(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog); break;
    case WM_HSCROLL: ApplySlider(dialog); break;
    case WM_COMMAND: OnCommand(dialog, LOWORD(wParam)); break;
    default: break;
    }
    return 0;
}
