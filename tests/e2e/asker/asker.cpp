// Goes into the program under test by a hook on the messages that it gets, and asks its controls there.
#include "asker.h"

static void Answer(HWND control, Question& question) {
    if (question.message == LVM_GETITEMTEXTA) {
        question.item.pszText = question.text;
        question.item.cchTextMax = sizeof question.text;
    }
    SendMessageA(control, question.message, question.wParam, reinterpret_cast<LPARAM>(&question.place));
    question.bAnswered = TRUE;
}

static void AnswerShared(HWND control) {
    const HANDLE memory = OpenFileMappingA(FILE_MAP_ALL_ACCESS, FALSE, QUESTION_NAME);
    if (void* const view = MapViewOfFile(memory, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Question))) {
        Answer(control, *static_cast<Question*>(view));
        UnmapViewOfFile(view);
    }
    CloseHandle(memory);
}

extern "C" LRESULT CALLBACK OnMessage(int code, WPARAM wParam, LPARAM lParam) {
    static const UINT ask = RegisterWindowMessageA(ASK_NAME);
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && sent.message == ask)
        AnswerShared(sent.hwnd);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
