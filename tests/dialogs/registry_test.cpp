#include "dialogs/registry.h"

#include "regions/region_table.h"
#include "resources/control_ids.h"
#include "support/quorl_test.h"

using Registry = RunningQuorl;

TEST_F(Registry, OpeningATemplateAgainRaisesItsDialogNearTheMiddle) {
    OpenDialog(MainWnd, DIALOG_FIND_WINDOW);
    const HWND find = DialogHandles[DIALOG_FIND_WINDOW];
    WindowOf(find).rect = {0, 0, 300, 200};
    for (const DialogId id : {DIALOG_FIND_WINDOW, DIALOG_FIND_REGION}) { // they share a template
        OpenDialog(MainWnd, DIALOG_ABOUT);
        EXPECT_TRUE(OpenDialog(MainWnd, id));
        EXPECT_EQ(Desk.foreground, find);
        EXPECT_EQ(RectOf(find), Rect(437, 334, 737, 534));
    }
    EXPECT_EQ(DialogHandles[DIALOG_FIND_REGION], nullptr);
    CloseDialog(find);
    OpenDialog(MainWnd, DIALOG_FIND_REGION);
    EXPECT_EQ(WindowOf(DialogHandles[DIALOG_FIND_REGION]).title, "Find Region...");
}

TEST_F(Registry, OwnedDialogsOutliveTheirOwner) {
    OpenDialog(MainWnd, DIALOG_HELP);
    const HWND help = DialogHandles[DIALOG_HELP];
    OpenDialog(help, DIALOG_ABOUT);
    CloseDialog(help);
    CloseDialog(MainWnd); // not a dialog: nothing happens
    EXPECT_TRUE(IsWindow(MainWnd));
    EXPECT_FALSE(IsWindow(help));
    EXPECT_EQ(WindowOf(DialogHandles[DIALOG_ABOUT]).owner, MainWnd);
}

TEST_F(Registry, ADialogIsNotCreatedWhileAnotherIs) {
    pSetLayeredWindowAttributes = nullptr; // shows a box when the dialog is created
    AnswerBoxes({IDOK});
    Desk.duringBox = [] { EXPECT_FALSE(OpenDialog(MainWnd, DIALOG_ABOUT)); };
    EXPECT_TRUE(OpenDialog(MainWnd, DIALOG_TRANSPARENCY));
}

static void UseAllDialogs() {
    for (int id = 0; id < NUM_DIALOGS; ++id) {
        OpenDialog(MainWnd, static_cast<DialogId>(id));
        for (const HWND dialog : DialogHandles) {
            if (const HWND name = FindControl(dialog, IDC_REGION_NAME))
                TypeText(name, "here");
            if (const HWND list = FindControl(dialog, IDC_FIND_LIST))
                SelectItem(list, 0);
            ClickControl(
                FindControl(dialog, dialog == DialogHandles[DIALOG_RESIZE_WINDOWS] ? IDC_RESIZE_OK : IDOK));
        }
    }
}

TEST_F(Registry, DialogsStayUsableWhicheverCallFails) {
    const auto prepare = [] {
        PrepareDesk();
        StartQuorl();
        HandleMessages();
        OpenWindow("mail", {2000, 300, 2400, 500});
    };
    const auto scenario = [] {
        Desk.boxAnswers.assign(20, IDOK);
        UseAllDialogs();
        Desk.fault.callsLeft = 0;
        UseAllDialogs();
        int hidden = 0; // one that could not be shown
        for (const HWND dialog : DialogHandles) {
            hidden += dialog != nullptr;
            EXPECT_FALSE(IsWindowVisible(dialog));
        }
        EXPECT_LE(hidden, 1);
        EXPECT_GE(num_regions + hidden, 1);
        EXPECT_EQ(Desk.unexpected, 0);
    };
    EXPECT_GT(FailEachCall(prepare, scenario), 100);
}
