#pragma once

/// A window that stood above the main one is gone: the main window shows and takes keys again, unless the
/// program is quitting. In Modify template mode the focus stays in its box.
void returnToMain();
