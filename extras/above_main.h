#pragma once

/// The windows of this folder stand above a disabled main window and give it back when they close. They may
/// be opened in Modify template mode too, and leave the focus in its box then. `visible`: the window's own
/// mark.
void openAboveMain(bool& visible);
void closeAboveMain(bool& visible);
