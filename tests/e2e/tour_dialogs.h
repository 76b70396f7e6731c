// The chapters of the tour that walk through the dialogs. Each begins and ends with the view at the desktop's
// first screen and with its dialogs closed.
#pragma once

void SetOptions();
void BindAKey();
void ComposeMenu();
void NameTheView();
void FindAWindow();
void FindARegion();
void ResizeAWindow();
void SeeThrough();
void ReadHelp();
