// The dialogs that are open: each template once, all of them modeless.
#include "dialogs/registry.h"

#include "core/state.h"

#include <algorithm>
#include <iterator>

DialogSlot DialogSlots[NUM_DIALOGS + 1] = {
    {nullptr, DIALOG_ABOUT         },
    {nullptr, DIALOG_HELP          },
    {nullptr, DIALOG_OPTIONS       },
    {nullptr, DIALOG_ACTIONS       },
    {nullptr, DIALOG_RESIZE_WINDOWS},
    {nullptr, DIALOG_NAME_REGION   },
    {nullptr, DIALOG_CUSTOMIZE_MENU},
    {nullptr, DIALOG_FIND          },
    {nullptr, DIALOG_FIND          }, // a search ends at the row above
    {nullptr, DIALOG_TRANSPARENCY  },
    {nullptr, -1                   },
};

HWND DialogHandles[NUM_DIALOGS];

static DialogSlot* SlotOf(int resource_id) {
    DialogSlot* const end = DialogSlots + NUM_DIALOGS;
    DialogSlot* const found = std::find_if(
        DialogSlots, end, [resource_id](const DialogSlot& slot) { return slot.resource_id == resource_id; });
    return found == end ? nullptr : found;
}

// Its left edge comes to stand a quarter of its width left of the screen's middle, and so its top.
static void RaiseDialog(HWND dialog) {
    RECT place{};
    GetWindowRect(dialog, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    MoveWindow(dialog, (ScreenW() - width / 2) / 2, (ScreenH() - height / 2) / 2, width, height, TRUE);
    SetActiveWindow(dialog);
    BringWindowToTop(dialog);
    SetForegroundWindow(dialog);
}

// A dialog that shows a message while it is created runs whatever the user asks for meanwhile.
static int Create(DialogSlot& slot, HWND parent, DLGPROC procedure) {
    static int bCreating;
    if (bCreating)
        return 0;
    bCreating = 1;
    slot.handle = CreateDialogParamA(AppInstance, MAKEINTRESOURCEA(slot.resource_id), parent, procedure, 0);
    bCreating = 0;
    return slot.handle != nullptr;
}

int OpenDialog(HWND parent, int resource_id, DLGPROC procedure) {
    DialogSlot* const slot = SlotOf(resource_id);
    if (!slot)
        return 0;
    if (!IsWindow(slot->handle))
        return Create(*slot, parent, procedure);
    RaiseDialog(slot->handle);
    return 1;
}

// Windows destroys owned windows with their owner; what a dialog has opened outlives it.
static void HandOverOwned(HWND dialog) {
    for (const DialogSlot& slot : DialogSlots)
        if (slot.handle &&
            GetWindowLongPtrA(slot.handle, GWLP_HWNDPARENT) == reinterpret_cast<LONG_PTR>(dialog))
            SetWindowLongPtrA(slot.handle, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(MainWnd));
}

// EndDialog only hides a modeless dialog: a day's use would pile up hidden windows.
static void DestroyDialog(HWND dialog) {
    std::replace(std::begin(DialogHandles), std::end(DialogHandles), dialog, static_cast<HWND>(nullptr));
    HandOverOwned(dialog);
    DestroyWindow(dialog);
}

int CloseDialog(HWND dialog, int resource_id, INT_PTR result) {
    DialogSlot* const slot = SlotOf(resource_id);
    if (!slot) {
        MessageBeep(0);
        return 0;
    }
    if (!dialog || slot->handle != dialog)
        return 0;
    EndDialog(dialog, result);
    slot->handle = nullptr;
    DestroyDialog(dialog);
    return 1;
}

int IsOpenDialogMessage(MSG* message) {
    return std::any_of(std::begin(DialogHandles), std::end(DialogHandles),
                       [message](HWND dialog) { return IsDialogMessageA(dialog, message); });
}
